#include "Diagnosis.h"

#include <algorithm>

#include "Scanner.h"
#include "Schema.h"
#include "Text.h"

namespace {

void SkipSpaces(std::string_view& text) { text.remove_prefix(std::min(text.size(), text.find_first_not_of(kSpaces))); }

std::string_view CutWord(std::string_view& text, const char* delimiters) {
    const std::string_view word = text.substr(0, text.find_first_of(delimiters));
    text.remove_prefix(word.size());
    return word;
}

/// The first fault in the attributes `rest` of a start tag.
std::string AttributeFault(std::string_view rest, const std::string& tag) {
    for (SkipSpaces(rest); !rest.empty(); SkipSpaces(rest)) {
        const std::string_view name = CutWord(rest, " \t\r\n=\"'");
        if (Begins(name, "<")) return "start tag " + tag + " has no \">\" before the next \"<\"";
        if (name.empty()) return "attribute without a name in " + tag;
        SkipSpaces(rest);
        const std::string attribute = "attribute " + QuotedText(name) + " of " + tag;
        if (!Begins(rest, "=")) return attribute + " has no \"=\"";
        rest.remove_prefix(1);
        SkipSpaces(rest);
        if (!Begins(rest, "\"") && !Begins(rest, "'")) return attribute + " has a value without quotes";
        const std::size_t close = rest.find(rest[0], 1);
        if (close == std::string_view::npos) return attribute + " has no closing quote before the next \">\"";
        rest.remove_prefix(close + 1);
    }
    return "start tag " + tag + " cannot be decoded";
}

std::string StartTagFault(std::string_view tag) {
    if (Ends(tag, "/")) tag.remove_suffix(1);
    SkipSpaces(tag);
    const std::string_view name = CutWord(tag, kSpaces);
    return name.empty() ? "tag without a name" : AttributeFault(tag, TagText(name));
}

std::string SectionFault(const Document& document, const Scanner& scanner) {
    const std::string_view tag = scanner.Tag();
    if (Begins(tag, "!--")) {
        const bool closed = document.text.find("-->", scanner.TagOffset() + 4) != std::string::npos;
        return closed ? "comment contains \">\", which the decoder takes for its end" : "comment is never closed";
    }
    if (Begins(tag, "![CDATA[")) return "CDATA section <![CDATA[, which is not supported";
    if (Begins(tag, "!DOCTYPE")) return "document type <!DOCTYPE, which is not supported";
    return TagText(tag) + ", which is not supported";
}

std::string DeclarationFault(const Scanner& scanner) {
    if (!Ends(scanner.Tag(), "?")) return "declaration is not closed by \"?>\"";
    return "declaration " + TagText(scanner.Tag()) + " after the root element has started";
}

std::string EndTagFault(const Document& document, const Scanner& scanner) {
    const std::string tag = "end tag " + TagText(scanner.Tag());
    if (scanner.Open().empty()) return tag + ", but no element is open";
    const OpenElement& open = scanner.Open().back();
    if (TrimEnd(scanner.Tag().substr(1)) == open.name) return tag + " has a blank before \">\", which is not supported";
    return tag + " does not match " + TagText(open.name) + " opened at " + document.PlaceOf(open.offset);
}

std::string RefusedTag(const Document& document, const Scanner& scanner) {
    const std::string_view tag = scanner.Tag();
    if (Begins(tag, "!")) return SectionFault(document, scanner);
    if (Begins(tag, "?")) return DeclarationFault(scanner);
    return Begins(tag, "/") ? EndTagFault(document, scanner) : StartTagFault(tag);
}

/// What is missing from a text that ran out.
DocumentError Shortage(const Document& document, const Scanner& scanner) {
    const std::size_t tag = scanner.TagOffset();
    if (tag != kNoOffset && tag + 1 + scanner.Tag().size() == document.text.size()) {
        const bool isComment = Begins(scanner.Tag(), "!--");
        return {kNotDecoded, isComment ? "comment is never closed" : "the text ends inside this tag", tag};
    }
    if (scanner.Open().empty()) return {kNotDecoded, "no element found; this is no XML document"};
    const OpenElement& open = scanner.Open().back();
    return {kNotDecoded, TagText(open.name) + " opened at " + document.PlaceOf(open.offset) + " is never closed",
            document.text.size()};
}

/// Why the scanner did not come to the end.
DocumentError FaultOf(const Document& document, const Scanner& scanner) {
    if (!scanner.Refused()) return Shortage(document, scanner);
    return {kNotDecoded, RefusedTag(document, scanner), scanner.TagOffset()};
}

/// Why a schema makes nothing of a root element that it does not have.
std::string OtherRoot(const RootElement& root, const XmlSchemaInfo& schema) {
    std::string expected;
    for (const std::string_view name : RootsOf(schema)) expected += (expected.empty() ? "" : " or ") + TagText(name);
    const XmlSchemaInfo* const other = SchemaWithRoot(root.Local());
    return "is not " + expected + " of schema " + schema.name +
           (other != nullptr ? std::string(", but of schema ") + other->name : "");
}

/// Why a schema makes nothing of a root element that it has.
std::string RefusedRoot(const RootElement& root, const XmlSchemaInfo& schema,
                        const std::function<bool()>& binderHelps) {
    std::string namespaceFault = NamespaceFault(root, schema);
    if (!namespaceFault.empty()) return namespaceFault;
    std::string fault = std::string("is not understood by schema ") + schema.name;
    if (root.Prefix().empty()) return fault + (IsRulePart(root.Local()) ? " without a prefix" : "");
    fault += ": it does not know the prefix " + QuotedText(root.Prefix());
    if (!schema.takesBinder) return fault;
    if (!root.Namespace()) return fault + ", which the element does not declare";
    if (!binderHelps()) return fault;
    // The binder is for the root and what is read with it; most services are read alone.
    return fault + (schema.id == IX_XML_SCHEMA_SIMSERVS
                        ? "; --binder makes some of its services readable, --profile standard all of them"
                        : "; --binder gives it the document's own declarations");
}

}  // namespace

DocumentError Diagnose(const Document& document) {
    Scanner scanner(document.text);
    if (scanner.FindEnd()) return {kNotDecoded, "the decoder could not go on; there may be no memory left"};
    return FaultOf(document, scanner);
}

DocumentError Diagnose(const Document& document, const XmlSchemaInfo& schema,
                       const std::function<bool()>& binderHelps) {
    Scanner scanner(document.text);
    if (!scanner.FindEnd()) return FaultOf(document, scanner);
    const RootElement& root = *scanner.Root();
    const std::string fault =
        TakesRoot(schema, root.Local()) ? RefusedRoot(root, schema, binderHelps) : OtherRoot(root, schema);
    return {kNotDecoded, "root element " + TagText(root.name) + ' ' + fault, root.offset};
}
