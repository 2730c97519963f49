#include "xml/InputSources.h"

#include <sys/stat.h>

#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/URLInputSource.hpp>

#include "support/Text.h"

std::unique_ptr<xercesc::InputSource> MakeInputSource(const XMLCh* base, const XMLCh* name) {
    xercesc::XMLURL url;
    const bool located =
        base == nullptr ? xercesc::XMLURL::parse(name, url) : url.setURL(base, name, url);
    if (located && !url.isRelative()) {
        return std::make_unique<xercesc::URLInputSource>(url);
    }
    return base == nullptr ? std::make_unique<xercesc::LocalFileInputSource>(name)
                           : std::make_unique<xercesc::LocalFileInputSource>(base, name);
}

bool IsUnreadableFile(const xercesc::InputSource& source) {
    struct stat status = {};
    return dynamic_cast<const xercesc::LocalFileInputSource*>(&source) != nullptr &&
           ::stat(NarrowMessage(source.getSystemId()).c_str(), &status) == 0 &&
           !S_ISREG(status.st_mode);
}
