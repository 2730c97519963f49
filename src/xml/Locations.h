#ifndef DORVEX_XML_LOCATIONS_H
#define DORVEX_XML_LOCATIONS_H

#include <string>

/// What is opened for `name` where the document `base` writes it (empty: the working directory):
/// the full name of a file, also of one that a catalog gives for a location, or the location of
/// something elsewhere. Opens nothing.
std::string OpenedLocation(const std::string& name, const std::string& base = {});

#endif
