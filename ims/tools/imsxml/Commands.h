/// @file
/// The commands, each for one document. They print to the standard error only what goes with a success; a failure is
/// thrown as `DocumentError`.
#ifndef IMSXML_TOOL_COMMANDS_H
#define IMSXML_TOOL_COMMANDS_H

#include <string>

#include "Document.h"
#include "Options.h"
#include "Progress.h"

/// @return what goes to the standard output.
using Command = std::string (*)(const Document& document, const Options& options, const Progress& progress);

std::string DecodeDocument(const Document& document, const Options& options, const Progress& progress);
std::string ConvertDocument(const Document& document, const Options& options, const Progress& progress);

/// The text of each document in JSON, one behind the other.
std::string EncodeDocument(const Document& document, const Options& options, const Progress& progress);
/// What the written text says otherwise than the document, a line each.
std::string ListLosses(const Document& document, const Options& options, const Progress& progress);

std::string ListNamespaces(const Document& document, const Options& options, const Progress& progress);

/// A line for each point in which a document is not what its standard says. Throws when there is one.
std::string ValidateDocument(const Document& document, const Options& options, const Progress& progress);

/// A table of all schemas; needs no document.
std::string ListSchemas();

#endif
