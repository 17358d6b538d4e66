// Asks every class with every name of its schema, and with some that it does not know: what its hooks answer, take and
// log, and what becomes of it without memory. tests/expected/<schema>/hooks.txt has a line for each answer:
//
//     ix_registration
//       (other) <> nothing, "abc": 1 "3 ix_registration::ProcessUnMarshall Cannot accommodate the element {name}"
//       contact <> nothing: 0 "3 ix_registration::ProcessUnMarshall: n_Object is Null"
//       contact <> ix_ns_reginfo_contact: 1 {"contact":[{object}]}
//
// "<>" is a start tag, "</>" an end tag, "=" an attribute; what is offered with it stands behind. An answer is followed
// by the fields that it changed and the lines that it logged, and by what is not as usual: "not kept" is an object that
// was taken and is nobody's now, "left" are blocks that nobody frees. What a name has in common with all others, NULL
// among them, is left out.
#include <algorithm>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "Classes.h"
#include "Scenario.h"
#include "XMLSchemaNameSpaceRetrieval.h"
#include "XmlFamilyDecoder.h"
#include "XmlFields.h"

namespace {

/// An attribute that is no pair; a name of NULL: without class name.
class OtherAttribute : public XMLAttribute {
  public:
    explicit OtherAttribute(const char* name) : m_name(name) {}
    const char* ClassName() const override { return m_name; }
    const char* BaseClassName() const override { return "XMLAttribute"; }
    const char* TypeName() const override { return "Other"; }
    int Reserved() const override { return 0; }

  private:
    const char* m_name;
};

enum Form { kStart, kEnd, kAttribute };
const char* const kForms[] = {"<>", "</>", "="};

const char kTwice[] = " twice";
const char kWithoutMemory[] = " without memory";

/// Labels of what comes with an attribute.
const char kPair[] = "pair";
const char kOtherAttribute[] = "other attribute";
const char kNamelessAttribute[] = "nameless attribute";

/// What is offered under a name, once or several times.
struct Offer {
    Form form;
    std::string label;
    std::vector<const char*> texts{nullptr};  ///< One for each time.
    bool isObject = false;
    const XmlClass* child = nullptr;  ///< NULL: one without class name.
};

void Replace(std::string& text, const std::string& part, const char* by) {
    for (std::size_t at = text.find(part); !part.empty() && at != std::string::npos; at = text.find(part, at + 1)) {
        text.replace(at, part.size(), by);
    }
}

/// Replaces a `word` that stands alone; `text` begins and ends with a blank.
void ReplaceWord(std::string& text, const std::string& word, const char* by) {
    for (const char before : {' ', '/', '"'}) {
        for (const char behind : {' ', ',', '"'}) {
            const std::size_t at = text.find(before + word + behind);
            if (at != std::string::npos) return void(text.replace(at + 1, word.size(), by));
        }
    }
}

/// The lines of a name: offers with the same outcome stand together.
class Answers {
  public:
    void Add(const std::string& form, const std::string& label, const std::string& outcome) {
        const auto isSame = [&](const Row& row) { return row.form == form && row.outcome == outcome; };
        auto known = std::find_if(m_rows.begin(), m_rows.end(), isSame);
        if (known == m_rows.end()) known = m_rows.insert(known, {form, outcome, {}});
        if (known->labels.empty() || known->labels.back() != label) known->labels.push_back(label);
    }

    /// @param groups labels that have a common name where most of them stand together.
    std::string Text(const std::string& name, const std::map<std::string, Strings>& groups) const {
        std::string text;
        for (const Row& row : m_rows) {
            Strings labels = row.labels;
            for (const auto& [common, members] : groups) {
                const auto isMember = [&members = members](const std::string& label) {
                    return std::find(members.begin(), members.end(), label) != members.end();
                };
                const auto rest = std::stable_partition(labels.begin(), labels.end(), std::not_fn(isMember));
                const auto count = static_cast<std::size_t>(labels.end() - rest);
                if (count * 2 <= members.size() || count < 3) continue;
                labels.erase(rest, labels.end());
                labels.push_back((count == members.size() ? "any " : "any other ") + common);
            }
            std::string list;
            for (const std::string& label : labels) list += (list.empty() ? " " : ", ") + label;
            text += "  " + name + ' ' + row.form + list + ": " + row.outcome + '\n';
        }
        return text;
    }

  private:
    struct Row {
        std::string form;
        std::string outcome;
        Strings labels;
    };
    std::vector<Row> m_rows;
};

class HookMatrixTest : public XmlTest, public testing::WithParamInterface<eXMLSchemaID> {
  protected:
    HookMatrixTest() {
        m_children.push_back(nullptr);
        for (const XmlClass* const create : m_children) {
            const XmlOwned<> element(New(create));
            for (const char* const how : {"", kTwice, kWithoutMemory}) {
                m_groups[std::string("object") + how].push_back(NameOf(*element.get()) + how);
            }
            for (const auto& field : FieldsOf(*element.get())) m_names.insert(field.first);
        }
        for (const std::string& file :
             FilesBelow(PROJECT_DIR "/samples/" + std::string(XMLFactory::SchemaInfo(GetParam())->name))) {
            const std::string text = ReadFile(file);
            static const std::regex name("</?(?:[\\w-]+:)*([\\w-]+)|([\\w-]+)=\"");
            for (std::sregex_iterator found(text.begin(), text.end(), name), end; found != end; ++found) {
                m_names.insert((*found)[(*found)[1].matched ? 1 : 2]);
            }
        }
    }

    /// Everything about a class.
    std::string AnswersOf(const XmlClass* create) {
        std::map<std::string, const XmlField*> own;
        std::string text;
        {
            const XmlOwned<> element(New(create));
            own = FieldsOf(*element.get());
            text = Introduction(*element.get());
        }
        m_usual.clear();
        text += AnswersTo(create, "vendor", "(other)", nullptr);
        for (const std::string& name : m_names) {
            const auto field = own.find(name);
            text += AnswersTo(create, name.c_str(), name, field != own.end() ? field->second : nullptr);
            if (field != own.end()) text += AnswersTo(create, (name + 's').c_str(), name + 's', nullptr);
        }
        return text + AnswersTo(create, nullptr, "NULL", nullptr);
    }

  private:
    static std::string NameOf(const XMLElement& element) {
        return element.ClassName() != nullptr ? element.ClassName() : "nameless";
    }

    /// The names of an object's class, and what is set in a new one.
    static std::string Introduction(XMLElement& element) {
        const auto* const object = dynamic_cast<const XMLObject*>(&element);
        Json tree = JsonOf(&element);
        tree.erase("class");
        return NameOf(element) + ": " + element.BaseClassName() + " \"" + element.TypeName() + '"' +
               (object != nullptr && object->IsRootElement() != 0 ? " root" : "") +
               (element.Reserved() != 0 ? " reserved" : "") + (tree.empty() ? "" : ' ' + tree.dump()) + '\n';
    }

    std::string AnswersTo(const XmlClass* create, const char* name, const std::string& shown, const XmlField* field) {
        std::set<std::string> values = {"abc", "", "true", "false", " 7s", "-1", "4294967296", "9223372036854775808"};
        for (int i = 0; field != nullptr && field->enumeration != nullptr && i < field->enumeration->count; ++i) {
            const std::string word = field->enumeration->TextOf(i);
            values.insert({word, word + 'x', word.substr(0, word.size() - 1)});
        }
        m_groups["text"].clear();
        for (const std::string& value : values) m_groups["text"].push_back(Json(value).dump());
        Answers answers;
        const auto ask = [&](const Offer& offer, const std::string& usualLabel) {
            const std::string outcome = Ask(create, name, offer);
            std::string& usual = m_usual[{offer.form, usualLabel}];
            if (usual.empty()) {
                usual = outcome;
            } else if (usual == outcome) {
                return false;
            }
            answers.Add(kForms[offer.form], offer.label, outcome);
            if (m_changed) AddWithoutMemory(answers, create, name, offer);
            return m_changed;
        };
        ask({kStart, "nothing"}, "nothing");
        ask({kStart, "\"abc\"", {"abc"}}, "text");
        for (std::size_t i = 0; i < m_children.size(); ++i) {
            const std::string& label = m_groups["object"][i];
            if (!ask({kStart, label, {nullptr}, true, m_children[i]}, label)) continue;
            ask({kStart, label + kTwice, {nullptr, nullptr}, true, m_children[i]}, label + kTwice);
        }
        ask({kEnd, m_groups["object"][0], {"abc"}, true, m_children[0]}, "object");
        for (const Form form : {kEnd, kAttribute}) {
            const char* changing = nullptr;
            ask({form, "nothing"}, "nothing");
            for (const std::string& value : values) {
                if (ask({form, Json(value).dump(), {value.c_str()}}, "text")) changing = value.c_str();
            }
            if (changing == nullptr) continue;
            ask({form, "twice", {changing, "true"}}, "twice");
            ask({form, "a value, then nothing", {changing, nullptr}}, "cleared");
        }
        for (const char* const pair : {kPair, kOtherAttribute, kNamelessAttribute})
            ask({kAttribute, pair, {"abc"}}, pair);
        return answers.Text(shown, m_groups);
    }

    /// Lets each allocation of an answer fail in turn.
    void AddWithoutMemory(Answers& answers, const XmlClass* create, const char* name, const Offer& offer) {
        if (offer.texts.size() > 1 || (!offer.isObject && offer.label != "\"abc\"" && offer.label != kPair)) return;
        for (unsigned long failing = 1;; ++failing) {
            const std::string outcome = Ask(create, name, offer, failing);
            if (!m_reached) break;
            answers.Add(kForms[offer.form], offer.label + kWithoutMemory, outcome);
        }
        m_changed = true;
    }

    /// Makes an object, offers it something, and says what it did.
    std::string Ask(const XmlClass* create, const char* name, const Offer& offer, unsigned long failing = 0) {
        XMLElement* const element = New(create);
        const Json before = StateOf(*element);
        std::vector<XMLElement*> children;
        std::vector<XMLAttribute*> pairs;
        std::string answers;
        std::string childClass;
        std::string childTree;
        std::size_t taken = 0;
        ClearLog();
        for (const char* const text : offer.texts) {
            XMLElement* const child = offer.isObject ? New(offer.child) : nullptr;
            XMLAttribute* const pair = NewAttribute(offer.label, name, text);
            if (child != nullptr) childTree = JsonOf(child).dump();
            if (child != nullptr) childClass = NameOf(*child);
            ixDplHostFailAllocation(failing);
            const int answer = Call(*element, offer.form, name, text, child, pair);
            m_reached = ixDplHostAllocations() >= failing;
            ixDplHostStopCounting();
            taken += answer != 0 ? 1 : 0;
            answers += (answers.empty() ? "" : " ") + std::to_string(answer);
            if (child != nullptr) children.push_back(child);
            if (pair != nullptr) pairs.push_back(pair);
        }
        const Json after = StateOf(*element);
        m_changed = after != before;
        std::string changes = Changes(before, after);
        Replace(changes, childTree, "{object}");
        if (name != nullptr) Replace(changes, "\"name\":" + Json(name).dump(), "\"name\":{name}");
        if (offer.texts.back() != nullptr) Replace(changes, Json(offer.texts.back()).dump(), "{value}");
        std::string outcome = answers + changes + Lines(name, offer, childClass);
        XMLFactory::DeleteElement(element);
        std::size_t alive = 0;
        for (XMLElement* const child : children)
            alive += IsAlive(child) && (XMLFactory::DeleteElement(child), true) ? 1 : 0;
        for (XMLAttribute* const pair : pairs) {
            if (!IsAlive(pair)) continue;
            ixDelete(pair);
            ++alive;
        }
        if (alive + taken > offer.texts.size()) outcome += " not kept";
        const std::size_t left = ixDplHostLedger().liveHeapBlocks;
        if (left != 0) outcome += " left " + std::to_string(left);
        ReleaseLeftovers();
        return outcome;
    }

    static XMLAttribute* NewAttribute(const std::string& label, const char* name, const char* text) {
        if (label == kOtherAttribute || label == kNamelessAttribute) {
            auto* const other = new (std::nothrow) OtherAttribute(label == kOtherAttribute ? "other" : nullptr);
            ixTrack(kSchemaModule, "tests", __LINE__, other, sizeof *other);
            return other;
        }
        if (label != kPair) return nullptr;
        auto* const pair = ixNew<ix_AttributeValuePair>("tests");
        pair->setNameValue(name);
        pair->setValueValue(text);
        return pair;
    }

    static int Call(XMLElement& element, Form form, const char* name, const char* text, XMLElement* child,
                    XMLAttribute* pair) {
        std::string own = (form == kEnd ? "/" : "") + std::string(name != nullptr ? name : "");
        std::string value = text != nullptr ? text : "";
        char* const passed = name != nullptr ? own.data() : nullptr;
        char* const passedText = text != nullptr ? value.data() : nullptr;
        if (form == kAttribute) return element.ProcessUnMarshallAttribute(passed, passedText, pair);
        return element.ProcessUnMarshall(passed, passedText, child);
    }

    static bool IsAlive(const void* object) {
        std::pair<const void*, bool> found = {object, false};
        ixDplHostVisitLedger(
            [](const ixDplHostBlock& block, void* context) {
                auto& wanted = *static_cast<std::pair<const void*, bool>*>(context);
                wanted.second = wanted.second || wanted.first == block.pointer;
            },
            &found);
        return found.second;
    }

    std::string Lines(const char* name, const Offer& offer, const std::string& childClass) {
        std::string lines;
        for (const LogLine& line : LogOfSchemas()) {
            std::string text = ' ' + Shown(line) + ' ';
            if (!childClass.empty()) ReplaceWord(text, childClass, "{class}");
            ReplaceWord(text, name != nullptr ? name : "(null)", "{name}");
            for (const char* const value : offer.texts)
                ReplaceWord(text, value != nullptr ? value : "(null)", "{value}");
            lines += " \"" + text.substr(1, text.size() - 2) + '"';
        }
        return lines;
    }

    std::vector<const XmlClass*> m_children = ClassesOf(GetParam());
    std::map<std::string, Strings> m_groups;  ///< The labels of objects and texts.
    std::set<std::string> m_names;            ///< Of all fields of the schema, and in its samples.
    std::map<std::pair<Form, std::string>, std::string> m_usual;
    bool m_changed = false;
    bool m_reached = false;
};

INSTANTIATE_TEST_SUITE_P(Schemas, HookMatrixTest, testing::ValuesIn(AllSchemas()), SchemaName);

TEST_P(HookMatrixTest, EveryClassAnswersAsExpected) {
    std::set<const XmlClass*> earlier;
    for (const eXMLSchemaID id : AllSchemas()) {
        const std::vector<const XmlClass*> classes = ClassesOf(id);
        if (id < GetParam()) earlier.insert(classes.begin(), classes.end());
    }
    std::string text;
    for (const XmlClass* const create : ClassesOf(GetParam())) {
        if (earlier.count(create) == 0) text += AnswersOf(create);
    }
    text.pop_back();
    ExpectFile(PROJECT_DIR "/tests/expected/" + std::string(XMLFactory::SchemaInfo(GetParam())->name) + "/hooks.txt",
               text);
}

/// Gives decoders events that no document gives them: without names, with nothing open, and with a name that there is
/// no memory for. Expected in tests/expected/<schema>/events.txt; "without memory 2" is the second allocation that
/// fails.
class DecoderEventsTest : public XmlTest, public testing::WithParamInterface<eXMLSchemaID> {
  protected:
    struct Event {
        bool isAttribute;
        const char* element;
        const char* attribute;  ///< Elements have none.
        const char* text;
    };

    std::string AnswersIn(const std::string& root) {
        Answers answers;
        for (const char* const element : {static_cast<const char*>(nullptr), "name", "/name", m_long.c_str()}) {
            Add(answers, root, {false, element, nullptr, nullptr});
            Add(answers, root, {false, element, nullptr, "text"});
            for (const char* const attribute : {static_cast<const char*>(nullptr), "", "attribute"}) {
                Add(answers, root, {true, element, attribute, "text"});
            }
        }
        return answers.Text(root.empty() ? "in nothing:" : "in " + root + ':', {});
    }

    /// The same of the operations on names with prefixes, and of making a decoder.
    std::string AnswersWithoutMemory() {
        Answers answers;
        for (unsigned long failing = 1;; ++failing) {
            std::unique_ptr<XmlDecoderSchema> decoder;
            const std::string outcome = Answer(failing, [&] {
                decoder = NewDecoder(GetParam());
                return decoder != nullptr ? 1 : 0;
            });
            const XmlOwned<> session(decoder != nullptr ? decoder->GetSessionData() : nullptr);
            if (!m_reached) break;
            answers.Add("made", "without memory " + std::to_string(failing), outcome);
        }
        for (const char* const begin : {"", "/", "x:", "/x:"}) {
            const std::string tag = begin + m_long;
            for (unsigned long failing = 1; failing <= 2; ++failing) {
                const std::string label = begin + ("long" + (kWithoutMemory + (' ' + std::to_string(failing))));
                answers.Add("mapped", label, Change(tag, failing, &XmlFamilyDecoder::XMLChangeNamespaceTag));
                answers.Add("removed", label, Change(tag, failing, &XmlFamilyDecoder::XMLRemoveNameSpaceTag));
            }
        }
        return answers.Text("decoder", {});
    }

  private:
    std::string Change(const std::string& tag, unsigned long failing, int (XmlFamilyDecoder::*change)(const char*)) {
        ix_schema_namespace_retrieval binder;
        binder.addNameSpaceInfo(ixCreatePair("x", "http://uri.etsi.org/ngn/params/xml/simservs/xcap", "test"));
        const std::unique_ptr<XmlDecoderSchema> made = NewDecoder(GetParam());
        const XmlOwned<> session(made->GetSessionData());
        auto& decoder = static_cast<XmlFamilyDecoder&>(*made);
        decoder.SetNameSpaceBinderInfo(&binder);
        return Answer(failing, [&] { return (decoder.*change)(tag.c_str()); });
    }

    void Add(Answers& answers, const std::string& root, const Event& event) {
        const std::string label = Shown(event.element) + (event.isAttribute ? ' ' + Shown(event.attribute) : "") +
                                  (event.text != nullptr ? " text" : "");
        const char* const form = event.isAttribute ? "attribute" : "element";
        answers.Add(form, label, Ask(root, event));
        for (unsigned long failing = 1; event.element == m_long.c_str(); ++failing) {
            const std::string outcome = Ask(root, event, failing);
            if (!m_reached) break;
            answers.Add(form, label + kWithoutMemory + ' ' + std::to_string(failing), outcome);
        }
    }

    /// What a new decoder answers to an event, and logs; `root` is open then, if it is not empty.
    std::string Ask(std::string root, const Event& event, unsigned long failing = 0) {
        const std::unique_ptr<XmlDecoderSchema> decoder = NewDecoder(GetParam());
        if (!root.empty()) decoder->ProcessElement(root.data(), nullptr);
        // Decoders change no text.
        auto* const element = const_cast<char*>(event.element);
        auto* const attribute = const_cast<char*>(event.attribute);
        auto* const text = const_cast<char*>(event.text);
        std::string outcome = Answer(failing, [&] {
            return event.isAttribute ? decoder->ProcessAttribute(element, attribute, text)
                                     : decoder->ProcessElement(element, text);
        });
        const XmlOwned<> session(decoder->GetSessionData());
        return outcome;
    }

    /// What a call answers, and logs.
    template <class Call>
    std::string Answer(unsigned long failing, const Call& call) {
        ClearLog();
        ixDplHostFailAllocation(failing);
        std::string outcome = std::to_string(call());
        m_reached = ixDplHostAllocations() >= failing;
        ixDplHostStopCounting();
        for (const LogLine& line : LogOfSchemas()) outcome += " \"" + ShownWithSource(line) + '"';
        Replace(outcome, m_long, "long");
        return outcome;
    }

    std::string Shown(const char* text) const {
        return text == nullptr ? "NULL" : text == m_long ? "long" : Json(text).dump();
    }

    /// Longer than the room for names that a decoder begins with.
    const std::string m_long = std::string(200, 'x');
    bool m_reached = false;
};

INSTANTIATE_TEST_SUITE_P(Schemas, DecoderEventsTest, testing::ValuesIn(AllSchemas()), SchemaName);

TEST_P(DecoderEventsTest, AreAnsweredAsExpected) {
    const XmlSchemaInfo& schema = *XMLFactory::SchemaInfo(GetParam());
    std::string text = AnswersWithoutMemory() + AnswersIn("");
    std::istringstream roots(schema.rootElements);
    for (std::string root; roots >> root;) text += AnswersIn(root);
    text.pop_back();
    ExpectFile(PROJECT_DIR "/tests/expected/" + std::string(schema.name) + "/events.txt", text);
}

}  // namespace
