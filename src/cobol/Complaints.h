#ifndef DORVEX_COBOL_COMPLAINTS_H
#define DORVEX_COBOL_COMPLAINTS_H

#include <string_view>

/// What record items and their writer have to say, each message once; one counted line each on
/// standard error.

/// An item has nothing to write below it, nor a picture or usage of its own.
void ReportEmptyItem(std::string_view dataName);

/// An item redefines another one that has no name.
void ReportNamelessRedefinition();

#endif
