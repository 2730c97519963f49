// The floor of a start: a program that is linked with the same libraries and prints as many lines
// of the same lengths as the banner and the help text of the real one, and does nothing else.

#include <array>
#include <iostream>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view kFiller =
    "...............................................................................";

constexpr std::array<std::size_t, 43> kLineLengths{
    25, 40, 0,  7,  27, 0,  61, 65, 52, 0,  8, 0,  67, 32, 0,  68, 68, 68, 0,  65, 68, 70,
    29, 0,  67, 35, 0,  68, 63, 0,  63, 49, 0, 73, 30, 0,  68, 72, 61, 0,  78, 55, 0};

}  // namespace

int main() {
    for (const std::size_t length : kLineLengths) {
        std::cout << kFiller.substr(0, length) << '\n';
    }
    return std::cout.flush() ? 0 : 1;
}
