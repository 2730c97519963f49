#ifndef DORVEX_SUPPORT_FILESUSED_H
#define DORVEX_SUPPORT_FILESUSED_H

#include <string>
#include <vector>

/// Remembers that the file `path` was opened for reading, under the name that it was opened by.
/// What is no regular file is not noted, and a file not twice, whatever its names.
void NoteFileRead(const std::string& path);

/// Remembers how an output named `path` ended: whether all of it is in the file.
void NoteOutput(const std::string& path, bool isWritten);

/// What this process has read and written, in order.
struct FilesUsed {
    std::vector<std::string> read;
    std::vector<std::string> outputs;
    bool areOutputsWritten = true;  ///< every one of them, completely
};
/// The list lives as long as the process and grows with every file noted.
const FilesUsed& UsedFiles();

#endif
