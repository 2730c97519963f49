#ifndef DORVEX_SUPPORT_FILESREAD_H
#define DORVEX_SUPPORT_FILESREAD_H

#include <string>
#include <vector>

/// Remembers that the file `path` was opened for reading, under the name that it was opened by. A
/// file that was noted under any name is not noted again.
void NoteFileRead(const std::string& path);

/// The files noted in this process, in order.
const std::vector<std::string>& FilesRead();

#endif
