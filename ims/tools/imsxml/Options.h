/// @file
/// What the command line asks for.
#ifndef IMSXML_TOOL_OPTIONS_H
#define IMSXML_TOOL_OPTIONS_H

#include <string>
#include <vector>

#include "XMLFactory.h"

struct Options {
    std::vector<std::string> files;
    const XmlSchemaInfo* schema = nullptr;  ///< NULL: chosen by the root element of each document.
    bool tree = false;                      ///< The outline for people in place of JSON.
    bool binder = false;
    bool log = false;
    bool leaks = false;
    double timeout = 10;  ///< Seconds a file; 0: no limit.

    bool HasManyFiles() const { return files.size() > 1; }
};

#endif
