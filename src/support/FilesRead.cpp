// The one list of what this process has read, from which its dependencies are written.

#include "support/FilesRead.h"

#include <sys/stat.h>

#include <set>
#include <utility>

namespace {

struct ReadFiles {
    std::vector<std::string> paths;
    std::set<std::pair<dev_t, ino_t>> known;
};

ReadFiles& State() {
    static ReadFiles files;
    return files;
}

}  // namespace

void NoteFileRead(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
        State().known.emplace(status.st_dev, status.st_ino).second) {
        State().paths.push_back(path);
    }
}

const std::vector<std::string>& FilesRead() {
    return State().paths;
}
