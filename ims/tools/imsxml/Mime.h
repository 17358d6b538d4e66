/// @file
/// The parts of SIP messages and MIME entities, as a capture has them in a file.
#ifndef IMSXML_TOOL_MIME_H
#define IMSXML_TOOL_MIME_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Something to say of a place in the file.
struct MimeRemark {
    std::string text{};  ///< "": there is nothing to say.
    int line = 0;        ///< From 1 on.
    int column = 0;      ///< In bytes, from 1 on.
};

/// A part that has no parts itself, or cannot be opened.
struct MimePart {
    int message;           ///< Its number in the file, from 1 on.
    std::string name;      ///< "2", or "2.1" for the first part of part 2.
    std::string type;      ///< As written, without parameters; "": it has none.
    std::string text;      ///< After transfer decoding.
    int line;              ///< Of its first byte in the file.
    std::string encoding;  ///< What `text` is decoded from; "": it stands in the file as it is.
    bool hasParts;         ///< A multipart, or a message/cpim.
    MimeRemark problem;    ///< Why `text` is not what its type says.
};

struct MimeFile {
    int messages = 0;
    std::vector<MimePart> parts;
    std::vector<MimeRemark> warnings;
    MimeRemark problem;  ///< Why there is no message.
};

/// Reads one MIME entity, the body of one, or SIP messages one behind the other.
///
/// A body ends where its Content-Length says; a message without one takes the rest of the file. The parts of a
/// multipart and the content of a message/cpim are parts themselves, down to a depth of 10.
MimeFile ReadMime(std::string_view text);

#endif
