/// @file
/// The command that decodes the documents in SIP messages and MIME multiparts.
#ifndef IMSXML_TOOL_SIP_H
#define IMSXML_TOOL_SIP_H

#include "Commands.h"

/// `DecodeDocument` for each part whose content type has a schema. The other parts are named on the standard error.
std::string DecodeMessages(const Document& document, const Options& options, const Progress& progress);

#endif
