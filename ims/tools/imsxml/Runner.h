/// @file
/// Runs a command on files, each in a process of its own: a document that the library cannot get to the end of, or that
/// brings it down, is then no more than one failed file.
#ifndef IMSXML_TOOL_RUNNER_H
#define IMSXML_TOOL_RUNNER_H

#include "Commands.h"

/// @return the worst `ExitStatus` of all files.
int RunOnFiles(Command command, const Options& options);

/// Writes to the standard output. @return `kDone`, or `kWrongUsage` after a message.
int Print(const std::string& text);

#endif
