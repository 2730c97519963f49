// Asks the one place that opens inputs, so that the files of a schema set are the ones that its
// load has read.

#include "xml/Locations.h"

#include <xercesc/util/XMLException.hpp>

#include "xml/InputSources.h"
#include "xml/Paths.h"

std::string OpenedLocation(const std::string& name, const std::string& base) {
    if (!IsLocation(name) && !IsLocation(base)) {
        return base.empty() ? FullPath(name) : WeavePaths(base, name);
    }
    try {
        return OpenedName(*MakeInputSource(base.empty() ? nullptr : PathText(base).c_str(),
                                           PathText(name).c_str()));
    } catch (const xercesc::XMLException&) {
        return name;  // It cannot be opened either, which is reported there.
    }
}
