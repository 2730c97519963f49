// The settings that come from the environment and not from the command line. Either one, when
// set to nothing, is as if it were not set. The names of heads keep their order and may repeat. The
// variables of catalogs and of the network are looked at where inputs are opened.

#include "driver/Environment.h"

#include <cstdlib>
#include <string_view>

namespace {

std::string_view Variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

}  // namespace

std::vector<std::string> ChosenHeads() {
    constexpr std::string_view kSeparators = " \t\r\n,";
    const std::string_view list = Variable("DORVEX_HEADS");
    std::vector<std::string> names;
    for (std::size_t at = list.find_first_not_of(kSeparators); at != std::string_view::npos;) {
        const std::size_t end = list.find_first_of(kSeparators, at);
        names.emplace_back(list.substr(at, end - at));
        at = list.find_first_not_of(kSeparators, end);
    }
    return names;
}

std::string DependencyFileName() {
    return std::string(Variable("DORVEX_DEPFILE"));
}
