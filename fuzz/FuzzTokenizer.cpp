// The tokenizer alone: however a document is cut into pieces, it means the same.
//
// First byte: how the pieces are cut. The rest is the document.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "XmlDecoder.h"

namespace {

/// Writes the events down.
class Recorder : public XmlDecoderSchema {
  public:
    int Reserved() override { return 0; }
    int ProcessAttribute(char* element, char* attribute, char* value) override {
        return Add('a', {element, attribute, value});
    }
    int ProcessElement(char* element, char* text) override {
        return text != nullptr ? Add('e', {element, text}) : Add('s', {element});
    }
    int ProcessEndOfStartTag(char* element) override { return Add('c', {element}); }
    XMLElement* GetSessionData() override { return nullptr; }

    const std::string& Events() const { return m_events; }

  private:
    int Add(char kind, std::initializer_list<const char*> texts) {
        m_events += kind;
        for (const char* const text : texts) m_events.append(" [").append(text).append("]");
        m_events += '\n';
        return 0;
    }

    std::string m_events;
};

struct Outcome {
    int result;
    std::string events;
};

bool operator==(const Outcome& left, const Outcome& right) {
    return left.result == right.result && left.events == right.events;
}

/// Decodes pieces of these lengths until one ends the document or fails.
Outcome DecodePieces(const std::string& text, const std::vector<std::size_t>& lengths) {
    Recorder recorder;
    XmlDecoder tokenizer;
    tokenizer.SetSchemaDecoder(&recorder);
    int result = IX_XML_INCOMPLETE;
    std::size_t at = 0;
    for (const std::size_t length : lengths) {
        // A block of exactly this size, so that reading past the piece is noticed.
        const std::unique_ptr<char[]> piece(new char[length]);
        text.copy(piece.get(), length, at);
        at += length;
        result = tokenizer.Decode(piece.get(), static_cast<int>(length));
        if (result != IX_XML_INCOMPLETE) break;
    }
    return {result, recorder.Events()};
}

/// Cuts where `mayCut` allows it for the position behind each character. The choice among those is a walk of fixed
/// pseudo-random numbers; with a seed of 0 it is all of them.
template <class MayCut>
std::vector<std::size_t> Cut(const std::string& text, unsigned seed, MayCut mayCut) {
    std::vector<std::size_t> lengths;
    std::size_t begin = 0;
    std::uint32_t walk = seed;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool allowed = mayCut(text[at]);
        walk = walk * 1664525U + 1013904223U;
        const bool chosen = seed == 0 || (walk >> 24) < seed;
        if (at + 1 != text.size() && !(allowed && chosen)) continue;
        lengths.push_back(at + 1 - begin);
        begin = at + 1;
    }
    return lengths;
}

void RequireEqual(const Outcome& whole, const Outcome& pieces, const char* how) {
    if (whole == pieces) return;
    std::fprintf(stderr, "cut %s: whole %d\n%s\npieces %d\n%s\n", how, whole.result, whole.events.c_str(),
                 pieces.result, pieces.events.c_str());
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return -1;
    const unsigned seed = data[0];
    std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
    // Anywhere, NULs included. What a piece ends with may get lost then, so only the absence of faults counts.
    DecodePieces(text, Cut(text, seed, [](char) { return true; }));

    // A NUL ends a piece but not the document that the next piece goes on with.
    text.resize(text.find('\0') != std::string::npos ? text.find('\0') : text.size());
    if (text.empty()) return 0;
    const Outcome whole = DecodePieces(text, {text.size()});

    // A ">" in a text between tags does not count: that text would be dropped with the piece.
    bool inTag = false;
    RequireEqual(whole,
                 DecodePieces(text, Cut(text, seed,
                                        [&inTag](char c) {
                                            const bool endsTag = inTag && c == '>';
                                            inTag = c == '<' || (inTag && !endsTag);
                                            return endsTag;
                                        })),
                 "behind tags");

    // Within a tag nothing is dropped either, and what precedes the tag is kept with it.
    inTag = false;
    RequireEqual(whole,
                 DecodePieces(text, Cut(text, seed,
                                        [&inTag](char c) {
                                            const bool endsTag = inTag && c == '>';
                                            inTag = c == '<' || (inTag && !endsTag);
                                            return endsTag || inTag;
                                        })),
                 "in and behind tags");
    return 0;
}
