/// @file
/// Where the text of a document comes from.
#ifndef IMSXML_TOOL_INPUT_H
#define IMSXML_TOOL_INPUT_H

#include <string>

/// @return the text of a file, "-" being the standard input. Throws `DocumentError` when it cannot be read.
std::string ReadText(const std::string& name);

#endif
