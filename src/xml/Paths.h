#ifndef DORVEX_XML_PATHS_H
#define DORVEX_XML_PATHS_H

#include <optional>
#include <string>
#include <string_view>

/// The parser library's form of a file name and back. A file name is a row of bytes: one that the
/// locale cannot decode becomes a lone surrogate, which no text holds, so that each name comes back
/// byte for byte. A character of a document that the locale lacks is written in UTF-8.
std::u16string PathText(std::string_view path);
std::string PathBytes(std::u16string_view text);

/// Says whether `name` is a location, such as a URL, and no file name.
bool IsLocation(std::string_view name);

/// Replaces the escapes of a URL by their bytes. Nothing when one is malformed.
std::optional<std::string> Unescaped(std::string_view text);

/// The path of a file that is named by a path or by a URL; escapes are decoded unless a file of
/// the very name exists.
std::string LocalPath(std::string_view name);

/// Says whether `path` counts from a directory that it does not name.
bool IsRelativePath(const std::string& path);

/// The file name that a location without "://" stands for: the parser library decodes this one
/// escape there and no other.
std::string WithBlanks(std::string_view location);

/// Removes each "." segment, or each segment that a ".." behind it takes back, from a path.
std::string WithoutDotSlash(std::string path);
std::string WithoutDotDotSlash(std::string path);

/// Joins the directory part of `base` with the relative `path` and removes the dot segments.
std::string WeavePaths(const std::string& base, const std::string& path);

/// The working directory joined with a relative `path`; links stay as they are. `path` itself when
/// it is no relative one or the directory cannot be told.
std::string FullPath(const std::string& path);

/// What all names of one file have in common: its path with the links resolved. A location that is
/// no file stands for itself.
std::string FileIdentity(const std::string& name);

#endif
