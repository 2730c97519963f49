#ifndef DORVEX_DRIVER_ENVIRONMENT_H
#define DORVEX_DRIVER_ENVIRONMENT_H

#include <string>
#include <vector>

/// The names in DORVEX_HEADS, in order, parted by white space or commas: the global elements to
/// convert instead of those that nothing refers to. None when it is not set.
std::vector<std::string> ChosenHeads();

/// The file that DORVEX_DEPFILE names; empty when it is not set.
std::string DependencyFileName();

#endif
