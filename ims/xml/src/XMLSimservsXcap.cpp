#include "XMLSimservsXcap.h"

#include "XmlElementSupport.h"

namespace {

constexpr XmlField kSimservFields[] = {
    {XmlFieldKind::Flag, IX_STR_ACTIVE, XmlIntMember(&ix_ns_xcap_simservType::mActive), kXmlAlwaysSet},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_ns_xcap_simservType::mExtensionList), 0, nullptr,
     "attributes"},
};
constexpr XmlFieldTable kSimservTable = {nullptr, kSimservFields, 2};

}  // namespace

ix_ns_xcap_simservType::~ix_ns_xcap_simservType() {
    XmlFields::Release(this, kSimservTable);
}

const XmlFieldTable* ix_ns_xcap_simservType::FieldTable() const {
    return &kSimservTable;
}

int ix_ns_xcap_simservType::setActiveValue(int active) {
    mActive = active;
    return 1;
}

int ix_ns_xcap_simservType::setExtensionListValue(IxSingleElementList* list) {
    return ixSetAttributeList(mExtensionList, list);
}

int ix_ns_xcap_simservType::addExtension(ix_AttributeValuePair* pair) {
    return ixAppend(mExtensionList, pair, SourceFile(), ExtensionListLine());
}
