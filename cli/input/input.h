// Files that a command reads whole: by their name, through a pipe, or from standard input.
#pragma once

#include <cstdint>
#include <string>

namespace orv3::cli {

// Whether the path is "-", a pipe or a device, whose name tells nothing of its content.
bool IsStream(const std::string& path);

// The bytes of a file, of standard input for "-"; of more than `most` the first `most` + 1.
// CCommandError with status 3 names the file that cannot be read.
std::string ReadInput(const std::string& path, std::uint64_t most);

}  // namespace orv3::cli
