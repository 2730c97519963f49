#ifndef DORVEX_SUPPORT_SEVERITY_H
#define DORVEX_SUPPORT_SEVERITY_H

#include <string_view>

/// How a message begins. The first three are counted by whatever begins with them: an error, an
/// error that no input should bring about, a warning. The parser's error handler counts its own
/// fatal errors, and a note is not counted. The blank before the colon belongs to it; another one
/// follows.
inline constexpr std::string_view kErrorSeverity = "Error :";
inline constexpr std::string_view kInternalErrorSeverity = "Internal Error :";
inline constexpr std::string_view kWarningSeverity = "Warning :";
inline constexpr std::string_view kFatalErrorSeverity = "Fatal Error :";
inline constexpr std::string_view kNoteSeverity = "Note :";

#endif
