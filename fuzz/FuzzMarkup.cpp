// Copies, replaces and removes whole elements, attributes and files, and turns the links between
// files around, so that most inputs stay well-formed and reach each other; changes bytes now and
// then. Two inputs are crossed file by file.

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "FuzzSupport.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maximum);

namespace {

using Random = std::minstd_rand;

constexpr std::array<std::string_view, 4> kFiles = {"main.xsd", "a.xsd", "b.xsd", "c.xsd"};
constexpr std::array<std::string_view, 3> kLinks = {"include", "import", "redefine"};

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

std::string Replaced(std::string text, std::string_view place, std::string_view piece,
                     const char* begin) {
    return text.replace(static_cast<std::size_t>(place.data() - begin), place.size(), piece);
}

std::string Joined(const std::vector<std::string>& files) {
    std::string text = files.front();
    for (std::size_t i = 1; i < std::min(files.size(), kFiles.size()); ++i) {
        text += kNextFile + files[i];
    }
    return text;
}

/// Swaps two files, lays one over another or adds it once more.
std::string WithFilesMoved(std::vector<std::string> files, Random& random) {
    const std::size_t one = random() % files.size();
    const std::size_t other = random() % files.size();
    switch (random() % 3) {
        case 0:
            std::swap(files[one], files[other]);
            break;
        case 1:
            files[one] = std::string(files[other]);
            break;
        default:
            files.push_back(std::string(files[one]));
            break;
    }
    return Joined(files);
}

/// Names another file in a link, or makes it a link of another kind, its end tag included.
std::string WithLinkTurned(const std::string& before, Random& random) {
    static constexpr std::string_view kLocation = "schemaLocation=\"";
    std::size_t at = before.find(kLocation, random() % (before.size() + 1));
    at = at < before.size() ? at : before.find(kLocation);
    const std::string_view link = ElementAt(before, before.rfind('<', at));
    if (link.empty() || at == std::string::npos) {
        return before;
    }
    if (random() % 2 == 0) {
        at += kLocation.size();
        return Replaced(before, std::string_view(before).substr(at, before.find('"', at) - at),
                        kFiles[random() % kFiles.size()], before.data());
    }
    const std::string_view wanted = kLinks[random() % kLinks.size()];
    std::string turned(link);
    for (const std::string_view kind : kLinks) {
        const std::string_view head = link.substr(0, link.find(' '));
        if (head.ends_with(kind)) {
            if (const std::size_t end = link.rfind("</"); end < link.size()) {
                turned.replace(end + 1 + head.size() - kind.size(), kind.size(), wanted);
            }
            turned.replace(head.size() - kind.size(), kind.size(), wanted);
            break;
        }
    }
    return Replaced(before, link, turned, before.data());
}

std::size_t Store(const std::string& text, std::uint8_t* data, std::size_t maximum) {
    return text.copy(reinterpret_cast<char*>(data), maximum);
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned number) {
    Random random(number);
    const std::string before(data, data + size);
    // 0 and 1: bytes, 2: remove, 3 to 5: replace, 6 and 7: insert, 8: files, 9: links
    const auto way = random() % 10;
    if (way == 8) {
        return Store(WithFilesMoved(Split(data, size, kNextFile), random), data, maximum);
    }
    if (way == 9) {
        return Store(WithLinkTurned(before, random), data, maximum);
    }
    const auto find = random() % 2 == 0 ? ElementAt : AttributeAt;
    const std::string_view piece = find(before, random() % (size + 1));
    const std::string_view place = find(before, random() % (size + 1));
    if (way < 2 || piece.empty() || place.empty()) {
        return LLVMFuzzerMutate(data, size, maximum);
    }
    return Store(Replaced(before, place.substr(0, way < 6 ? place.npos : 0), way == 2 ? "" : piece,
                          before.data()),
                 data, maximum);
}

/// A file of the second input takes a place in the first or behind it.
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* first, std::size_t firstSize,
                                                 const std::uint8_t* second, std::size_t secondSize,
                                                 std::uint8_t* out, std::size_t maximum,
                                                 unsigned number) {
    Random random(number);
    std::vector<std::string> files = Split(first, firstSize, kNextFile);
    const std::vector<std::string> others = Split(second, secondSize, kNextFile);
    const std::size_t place = random() % (files.size() + 1);
    files.resize(std::max(files.size(), place + 1));
    files[place] = others[random() % others.size()];
    return Store(Joined(files), out, maximum);
}
