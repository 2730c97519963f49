#ifndef DORVEX_FUZZ_FUZZSUPPORT_H
#define DORVEX_FUZZ_FUZZSUPPORT_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Separates the files that one input holds; XML cannot hold it.
inline constexpr char kNextFile = '\f';

/// Ends the process with a find when a promise of the program does not hold.
void Require(bool kept, std::string_view promise);

/// The surroundings of one input: a fresh working directory, deleted with its files, and the
/// process-wide state of a fresh process, whose streams are collected in memory. The locale, UTF-8
/// or now and then one that knows ASCII only, follows from the input's size.
class CKTFreshRun {
public:
    explicit CKTFreshRun(std::size_t size);
    ~CKTFreshRun();
    CKTFreshRun(const CKTFreshRun&) = delete;
    CKTFreshRun& operator=(const CKTFreshRun&) = delete;

    /// What went to both streams so far, standard output first.
    [[nodiscard]] static std::string Console();

private:
    std::filesystem::path m_Directory;
    std::filesystem::path m_Before;
};

std::vector<std::string> Split(const std::uint8_t* data, std::size_t size, char separator);

/// Write and read a whole file; one that is not there reads as empty.
void WriteWhole(const std::string& name, std::string_view text);
std::string ReadWhole(const std::string& name);

/// Requires lines of text in columns 8 to 72, with an indicator at most before it.
void RequireFixedFormat(const std::string& copybook);

#endif
