#include "xml/Paths.h"

#include <memory>

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

#include "support/Text.h"

using xercesc::XMLPlatformUtils;

namespace {

struct LibraryTextDeleter {
    void operator()(XMLCh* text) const { XMLPlatformUtils::fgMemoryManager->deallocate(text); }
};
using LibraryText = std::unique_ptr<XMLCh, LibraryTextDeleter>;

}  // namespace

bool IsRelativePath(const std::string& path) {
    return XMLPlatformUtils::isRelative(WidenText(path.c_str()).c_str());
}

std::string WeavePaths(const std::string& base, const std::string& path) {
    try {
        const LibraryText woven(XMLPlatformUtils::weavePaths(WidenText(base.c_str()).c_str(),
                                                             WidenText(path.c_str()).c_str()));
        return NarrowText(woven.get());
    } catch (const xercesc::XMLException&) {
        return path;
    }
}

std::string FullPath(const std::string& path) {
    try {
        const LibraryText full(XMLPlatformUtils::getFullPath(WidenText(path.c_str()).c_str()));
        return NarrowText(full.get());
    } catch (const xercesc::XMLException&) {
        return path;
    }
}
