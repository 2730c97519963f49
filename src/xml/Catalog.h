#ifndef DORVEX_XML_CATALOG_H
#define DORVEX_XML_CATALOG_H

#include <optional>
#include <string>

/// Looks `location` up in the XML catalogs that XML_CATALOG_FILES names, or in the system's one
/// when it is not set: `system` entries first, then `uri` entries. Returns the path or URL that an
/// entry gives for it, nothing without one. A catalog that cannot be used is noted once on standard
/// error, uncounted; one that was read joins the files read.
std::optional<std::string> FindInCatalogs(const std::string& location);

#endif
