/// @file
/// The command that compares two documents. It is about what they say, so no schema is asked.
#ifndef IMSXML_TOOL_DIFF_H
#define IMSXML_TOOL_DIFF_H

#include <string>
#include <vector>

/// Prints the differences between two files. @return 0: there are none, 1: there are, 2: one of the files cannot be
/// read or is no XML, or the output cannot be written.
int RunDiff(const std::vector<std::string>& files);

#endif
