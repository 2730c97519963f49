#ifndef DORVEX_XML_PATHS_H
#define DORVEX_XML_PATHS_H

#include <string>

/// Says whether `path` is a relative path as the parser library sees it.
bool IsRelativePath(const std::string& path);

/// Joins the directory part of `base` with the relative `path` and removes the dot segments.
std::string WeavePaths(const std::string& base, const std::string& path);

/// The full path of a file, links resolved; `path` itself when the library cannot tell.
std::string FullPath(const std::string& path);

#endif
