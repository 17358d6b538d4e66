/// @file
/// What the command line asks for.
#ifndef IMSXML_TOOL_OPTIONS_H
#define IMSXML_TOOL_OPTIONS_H

#include <string>
#include <vector>

#include "Library.h"
#include "XMLFactory.h"

/// When the outline has colours.
enum class Colour {
    Auto,  ///< On a terminal, unless the environment has NO_COLOR.
    Always,
    Never
};

struct Options {
    std::vector<std::string> files;
    const XmlSchemaInfo* schema = nullptr;  ///< NULL: chosen by the root element of each document.
    eXMLProfile profile = IX_XML_PROFILE_DEVICE;
    bool sip = false;   ///< The files are messages, which can have many documents.
    bool tree = false;  ///< The outline for people in place of JSON.
    Colour colour = Colour::Auto;
    bool binder = false;
    bool strict = false;  ///< A text that says less or something else than its document is a failure.
    LogLines log = kNoLines;
    bool leaks = false;
    double timeout = 10;  ///< Seconds per file; 0: no limit.

    bool HasManyFiles() const { return sip || files.size() > 1; }
};

#endif
