#ifndef DORVEX_SUPPORT_SEVERITY_H
#define DORVEX_SUPPORT_SEVERITY_H

#include <string_view>

/// How a message begins that is counted: as an error, as an error that no input should bring about,
/// or as a warning. The blank before the colon belongs to it; another one follows.
inline constexpr std::string_view kErrorSeverity = "Error :";
inline constexpr std::string_view kInternalErrorSeverity = "Internal Error :";
inline constexpr std::string_view kWarningSeverity = "Warning :";

#endif
