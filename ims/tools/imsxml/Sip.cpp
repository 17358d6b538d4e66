#include "Sip.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "Mime.h"
#include "Text.h"

namespace {

class MessageDecoder {
  public:
    MessageDecoder(const std::string& name, const Options& options, const Progress& progress)
        : m_name(name), m_options(options), m_progress(progress) {}

    /// @return what is decoded. Throws a `DocumentError` without a message when that is not all.
    std::string Decode(MimeFile file);

  private:
    void DecodePart(MimePart part);
    void Fail(const DocumentError& error, Document document, const MimePart& part);
    void Tell(const MimeRemark& remark, const std::string& message) const;
    void Tell(const std::string& message) const;
    std::string TitleOf(const MimePart& part) const;

    const std::string& m_name;
    Options m_options;
    const Progress& m_progress;
    bool m_hasManyMessages = false;
    bool m_hasDocuments = false;
    ExitStatus m_worst = kDone;
    std::string m_output;
};

void MessageDecoder::Tell(const std::string& message) const {
    std::fprintf(stderr, "%s: %s\n", m_name.c_str(), message.c_str());
}

void MessageDecoder::Tell(const MimeRemark& remark, const std::string& message) const {
    std::fprintf(stderr, "%s:%d:%d: %s\n", m_name.c_str(), remark.line, remark.column, message.c_str());
}

std::string MessageDecoder::TitleOf(const MimePart& part) const {
    return (m_hasManyMessages ? "message " + std::to_string(part.message) + ", part " : "part ") + part.name + ": ";
}

void MessageDecoder::Fail(const DocumentError& error, Document document, const MimePart& part) {
    m_worst = std::max(m_worst, error.status);
    DocumentError inFile = error;
    // Without a place of its own, it is about the part.
    if (error.offset == kNoOffset && error.place.line == 0) inFile.offset = 0;
    if (part.encoding.empty()) {
        document.name = m_name;
        inFile.message = TitleOf(part) + error.message;
        std::fprintf(stderr, "%s\n", document.Describe(inFile).c_str());
        return;
    }
    document.name = "decoded from " + part.encoding;
    Tell({"", part.line, 1}, TitleOf(part) + document.Describe(inFile));
}

void MessageDecoder::DecodePart(MimePart part) {
    const int id = XMLFactory::SchemaForContentType(part.type.c_str());
    m_options.schema = XMLFactory::SchemaInfo(id);
    if (m_options.schema == nullptr && !part.hasParts) {
        Tell(TitleOf(part) +
             (part.type.empty() ? "there is no content type" : Short(part.type) + " is no document of a schema"));
        return;
    }
    m_hasDocuments = true;
    if (!part.problem.text.empty()) {
        m_worst = std::max(m_worst, kNotDecoded);
        Tell(part.problem, TitleOf(part) + Short(part.problem.text));
        return;
    }
    Document document;
    document.name = m_name + (m_hasManyMessages ? '#' + std::to_string(part.message) : "") + '#' + part.name;
    document.text = std::move(part.text);
    if (part.encoding.empty()) document.line = part.line;
    try {
        if (document.text.empty()) throw DocumentError{kNotDecoded, "the part is empty"};
        RequireText(document.text);
        m_output += DecodeDocument(document, m_options, m_progress);
    } catch (const DocumentError& error) {
        Fail(error, std::move(document), part);
    }
}

std::string MessageDecoder::Decode(MimeFile file) {
    m_hasManyMessages = file.messages > 1;
    if (!file.problem.text.empty()) {
        Tell(file.problem, file.problem.text);
        throw DocumentError{kNotDecoded, ""};
    }
    for (const MimeRemark& warning : file.warnings) Tell(warning, "warning: " + warning.text);
    for (MimePart& part : file.parts) DecodePart(std::move(part));
    if (!m_hasDocuments) throw DocumentError{kNotDecoded, "no part has a content type that a schema has"};
    if (m_worst != kDone) throw DocumentError{m_worst, "", kNoOffset, {}, std::move(m_output)};
    return std::move(m_output);
}

}  // namespace

std::string DecodeMessages(const Document& document, const Options& options, const Progress& progress) {
    return MessageDecoder(document.name, options, progress).Decode(ReadMime(document.text));
}
