// Copies, replaces and removes whole elements and attributes, so that most inputs stay well-formed;
// changes bytes now and then.

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maximum);

namespace {

/// The attribute at or behind `at`, with the blank before it; empty when there is none.
std::string_view AttributeAt(std::string_view text, std::size_t at) {
    const std::size_t equals = text.find("=\"", at);
    const std::size_t start = text.rfind(' ', equals);
    const std::size_t end = equals < text.size() ? text.find('"', equals + 2) : text.npos;
    return start < end && end < text.size() ? text.substr(start, end + 1 - start) : "";
}

/// The element that begins at or behind `at`, its end found by counting tags; empty without one.
std::string_view ElementAt(std::string_view text, std::size_t at) {
    const std::size_t start = text.find('<', at);
    int depth = 0;
    for (at = start; at < text.size(); at = text.find('<', at)) {
        const std::size_t begin = at;
        at = text.find('>', begin);
        if (at < text.size()) {
            depth += text[begin + 1] == '/' ? -1 : text[at - 1] == '/' ? 0 : 1;
            if (depth <= 0) {
                return depth == 0 ? text.substr(start, at + 1 - start) : "";
            }
        }
    }
    return "";
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned number) {
    std::minstd_rand random(number);
    const std::string before(data, data + size);
    const auto find = random() % 2 == 0 ? ElementAt : AttributeAt;
    const std::string_view piece = find(before, random() % (size + 1));
    const std::string_view place = find(before, random() % (size + 1));
    const auto way = random() % 8;  // 0 and 1: bytes, 2: remove, 3 to 5: replace, others: insert
    if (way < 2 || piece.empty() || place.empty()) {
        return LLVMFuzzerMutate(data, size, maximum);
    }
    std::string after = before;
    after.replace(static_cast<std::size_t>(place.data() - before.data()),
                  way < 6 ? place.size() : 0, way == 2 ? "" : piece);
    return after.copy(reinterpret_cast<char*>(data), maximum);
}
