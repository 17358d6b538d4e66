#include "XMLIsComposing.h"

#include "IsComposing.h"

namespace {

using namespace XmlRow;

constexpr XmlField kFields[] = {
    Element<&ix_isComposing::mState>(IX_STR_STATE).LeavesEarlier().Mandatory(),
    Element<&ix_isComposing::mLastactive>(IX_STR_LASTACTIVE).LeavesEarlier(),
    Element<&ix_isComposing::mContenttype>(IX_STR_CONTENTTYPE).LeavesEarlier(),
    Element<&ix_isComposing::mRefresh>(IX_STR_REFRESH).Nearest(),
    Others<&ix_isComposing::mAnyElementList>(),
};

constexpr XmlAnswers Answers() {
    XmlAnswers answers;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    return answers;
}

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLIsComposingDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in IsComposingUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&IsComposingMarshaller::AddIsComposingElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("IsComposingMarshaller", "mIsComposingXml"));

}  // namespace

constexpr XmlClass ix_isComposing::kClass =
    ixClass<ix_isComposing>("ix_isComposing", "IsComposing", kSource, kFields, Answers());

XMLElement* IsComposingDataBinder::CreateRootElement() { return ixNew<ix_isComposing>(kSource); }

IsComposingUnMarshaller::IsComposingUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

IsComposingMarshaller::IsComposingMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

IsComposingContext::IsComposingContext()
    : XmlFamilyContext(ixFamily<IsComposingMarshaller, IsComposingUnMarshaller, IsComposingDataBinder>(kSource)) {}

int IsComposingMarshaller::AddIsComposingElementToXml(ix_isComposing* isComposing) {
    if (!Enter(isComposing, {2, "<XML Module>: AddIsComposingElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_ISCOMPOSING);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_IM_ISCOMPOSING);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_XSI, IX_STR_HTTP_WWW_W3_ORG_2001_XMLSCHEMA_INSTANCE);
    // Required: the schema location names another namespace, and has two blanks before the file name.
    tag.AddPrefixed(IX_STR_XSI, IX_STR_SCHEMALOCATION, IX_STR_URN_IETF_PARAMS_XML_NS_IM_COMPOSING_ISCOMPOSING_XSD);
    tag.Close();
    if (isComposing->mState == nullptr) return 0;
    AddStateElementToXml(isComposing->mState);
    if (isComposing->mLastactive != nullptr) {
        AddLastactiveElementToXml(isComposing->mLastactive);
    } else {
        Log({1, "<XML Module>: IsComposingElement lastactive not present"});
    }
    if (isComposing->mContenttype != nullptr) {
        AddContenttypeElementToXml(isComposing->mContenttype);
    } else {
        Log({1, "<XML Module>: IsComposingElement Content-type not present"});
    }
    if (isComposing->mRefresh != 0) {
        AddRefreshElementToXml(isComposing->mRefresh);
    } else {
        Log({1, "<XML Module>: IsComposingElement Refresh not present"});
    }
    EndElement(IX_STR_ISCOMPOSING);
    return 1;
}

int IsComposingMarshaller::AddStateElementToXml(const char* state) {
    if (!Enter(state, {2, "<XML Module>: AddStateElementToXml"})) return 0;
    AddTextElement(IX_STR_STATE, state);
    return 1;
}

int IsComposingMarshaller::AddLastactiveElementToXml(const char* lastactive) {
    if (!Enter(lastactive, {2, "<XML Module>: AddLastactiveElementToXml"})) return 0;
    AddTextElement(IX_STR_LASTACTIVE, lastactive);
    return 1;
}

int IsComposingMarshaller::AddContenttypeElementToXml(const char* contenttype) {
    if (!Enter(contenttype, {2, "<XML Module>: AddContenttypeElementToXml"})) return 0;
    AddTextElement(IX_STR_CONTENTTYPE, contenttype);
    return 1;
}

int IsComposingMarshaller::AddRefreshElementToXml(unsigned int refresh) {
    Log({2, "<XML Module>: AddRefreshElementToXml"});
    AddDecimalElement(IX_STR_REFRESH, refresh);
    return 1;
}

char* TestIsComposingMarshall() {
    ix_isComposing root;
    const bool complete = root.setStateValue(ixString(IX_STR_ACTIVE)) != 0 &&
                          root.setLastactiveValue("2002-05-30T09:30:10-06:00") != 0 &&
                          root.setContenttypeValue("audio") != 0 && root.setRefreshValue(9) != 0;
    IsComposingMarshaller marshaller;
    const char* const text = complete ? marshaller.Marshall(&root) : nullptr;
    return text != nullptr ? __strdup(text) : nullptr;
}
