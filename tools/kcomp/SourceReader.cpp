// A file becomes lines, the lines words, and for each COPY statement come the words of its file,
// which is read in the same way. The recursion is bounded by its depth, and the total by the words
// that copies bring in, since files that each copy the next one twice double the text with every
// step. REPLACING applies to all that a copy file brings, its own copies included. Faults become
// words: where no data are described they do no harm, and who reads the data complains.

#include "kcomp/SourceReader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "kcomp/Text.h"

namespace {

constexpr std::size_t kMostNested = 50;
constexpr std::size_t kMostCopied = 2'000'000;
// Opening a file takes time even when it is empty.
constexpr std::size_t kCostOfFile = 100;  // in words

std::optional<std::string> ContentOf(const std::string& path) {
    std::error_code ignored;
    // Opening a pipe waits for a writer.
    if (!std::filesystem::is_regular_file(path, ignored)) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    std::string content((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (file.bad()) {
        return std::nullopt;
    }
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (content.starts_with(kByteOrderMark)) {
        content.erase(0, kByteOrderMark.size());
    }
    return content;
}

/// The index behind the period that ends a statement; periods of pseudo-text are none.
std::size_t EndOfStatement(const std::vector<TextWord>& words, std::size_t at) {
    bool pseudo = false;
    std::size_t first = words.size();  // the first period of all, for pseudo-text without an end
    while (at < words.size() && (pseudo || words[at].kind != WordKind::Period)) {
        if (first == words.size() && words[at].kind == WordKind::Period) {
            first = at;
        }
        pseudo ^= words[at++].kind == WordKind::Pseudo;
    }
    return std::min(at == words.size() ? first + 1 : at + 1, words.size());
}

/// Whether a statement begins that changes the text behind it. The word alone may be a name.
bool IsReplace(const std::vector<TextWord>& words, std::size_t at) {
    return IsWord(words[at], "REPLACE") && at + 1 < words.size() &&
           (words[at + 1].kind == WordKind::Pseudo || IsWord(words[at + 1], "ALSO") ||
            IsWord(words[at + 1], "LEADING") || IsWord(words[at + 1], "TRAILING") ||
            IsWord(words[at + 1], "OFF"));
}

}  // namespace

std::optional<std::vector<TextWord>> CKTSourceReader::Read(const std::string& path,
                                                           std::optional<SourceFormat> format) {
    // A text that fits both formats is read as fixed.
    SourceFormat used = format.value_or(SourceFormat::Fixed);
    auto words = WordsOf(path, used, !format.has_value());
    if (!words) {
        m_Report.Error({m_Report.KeepName(path), 1}, TextOf<Message::UnreadableFile>());
        return std::nullopt;
    }
    m_Open = {path};
    return Expand(std::move(*words), used);
}

std::optional<std::vector<TextWord>> CKTSourceReader::WordsOf(const std::string& path,
                                                              SourceFormat& format, bool detect) {
    const std::optional<std::string> content = ContentOf(path);
    if (!content) {
        return std::nullopt;
    }
    if (detect) {
        format = DetectFormat(*content, format);
    }
    return SplitIntoWords(ReadLogicalLines(*content, format), m_Report.KeepName(path));
}

std::vector<TextWord> CKTSourceReader::Expand(std::vector<TextWord> words, SourceFormat format) {
    std::vector<TextWord> expanded;
    for (std::size_t at = 0; at < words.size();) {
        if (IsReplace(words, at)) {
            const std::size_t end = EndOfStatement(words, at);
            words[at].kind = WordKind::Replace;
            // Only OFF makes a difference to what follows.
            words[at].text = words[at + 1].text;
            expanded.push_back(std::move(words[at]));
            at = end;
            continue;
        }
        if (!IsWord(words[at], "COPY")) {
            expanded.push_back(std::move(words[at++]));
            continue;
        }
        const CopyStatement copy = ReadCopy(words, at);
        std::vector<TextWord> copied = Copied(copy, format);
        // A comment before the statement goes to the first word that it brings.
        if (!copied.empty() && copied.front().comment.line == 0) {
            copied.front().comment = words[at].comment;
        }
        expanded.insert(expanded.end(), std::make_move_iterator(copied.begin()),
                        std::make_move_iterator(copied.end()));
        at = copy.end;
    }
    return expanded;
}

std::vector<TextWord> CKTSourceReader::Copied(const CopyStatement& copy, SourceFormat format) {
    const auto fault = [&copy](const CKTMessageText& text) {
        return std::vector<TextWord>{FaultAt(copy.name.place, text)};
    };
    if (!copy.fault.Empty()) {
        return fault(copy.fault);
    }
    const bool literal = copy.name.kind == WordKind::Literal;
    const std::string name = literal ? TextOfLiteral(copy.name) : copy.name.text;
    const std::optional<std::string> path = m_Library.Find(name, literal);
    if (!path) {
        return fault(TextOf<Message::NoCopyFile>(Quoted(name)));
    }
    if (std::find(m_Open.begin(), m_Open.end(), *path) != m_Open.end()) {
        return fault(TextOf<Message::CopyOfItself>(Quoted(name)));
    }
    if (m_Open.size() > kMostNested) {
        return fault(TextOf<Message::CopyTooDeep>());
    }
    // Asked before the file is opened, because a source may hold any number of statements.
    if (m_nCopied > kMostCopied) {
        return fault(TextOf<Message::CopyTooLarge>());
    }
    // The file may have another format than what copies it, without changing that.
    auto words = WordsOf(*path, format, true);
    if (!words) {
        return fault(TextOf<Message::UnreadableCopyFile>(Quoted(*path)));
    }
    m_nCopied += words->size() + kCostOfFile;
    if (m_nCopied > kMostCopied) {
        return fault(TextOf<Message::CopyTooLarge>());
    }
    m_Open.push_back(*path);
    std::vector<TextWord> expanded = Expand(std::move(*words), format);
    m_Open.pop_back();
    if (copy.pairs.empty()) {
        return expanded;
    }
    // What it copies in turn may have used up more than there is.
    const std::size_t most = kMostCopied - std::min(m_nCopied, kMostCopied);
    auto replaced = ReplaceWords(expanded, copy.pairs, most);
    // A copy that grew too large uses the rest up.
    m_nCopied += replaced ? replaced->size() : kMostCopied;
    return replaced ? std::move(*replaced) : fault(TextOf<Message::CopyTooLarge>());
}

// COPY name [SUPPRESS [PRINTING]] [REPLACING {operand BY operand}...].
CKTSourceReader::CopyStatement CKTSourceReader::ReadCopy(const std::vector<TextWord>& words,
                                                         std::size_t at) {
    CopyStatement copy;
    copy.name = words[at++];
    // Known in any case, so that a faulty statement is passed over as a whole.
    copy.end = EndOfStatement(words, at);
    const auto is = [&words, &at](std::string_view word) {
        return at < words.size() && IsWord(words[at], word);
    };
    const bool named =
        at < words.size() &&
        (words[at].kind == WordKind::Word ||
         (words[at].kind == WordKind::Literal && words[at].text.find_first_of("\"'") == 0));
    if (!named) {
        copy.fault = TextOf<Message::CopyWithoutName>();
        return copy;
    }
    // Complaints point at the word COPY, also when the name stands in another line.
    const SourcePlace place = copy.name.place;
    copy.name = words[at++];
    copy.name.place = place;
    if (is("OF") || is("IN")) {
        copy.fault = TextOf<Message::CopyFromLibrary>();
        return copy;
    }
    // That is about the listing only.
    if (is("SUPPRESS")) {
        ++at;
        at += is("PRINTING") ? 1 : 0;
    }
    if (is("REPLACING")) {
        ++at;
        while (at < words.size() && words[at].kind != WordKind::Period) {
            if (!ReadPair(words, at, copy.pairs.emplace_back())) {
                copy.fault = TextOf<Message::Replacing>();
                return copy;
            }
        }
    }
    if (at == words.size() || words[at].kind != WordKind::Period) {
        copy.fault = TextOf<Message::CopyWithoutPeriod>();
    }
    return copy;
}

bool CKTSourceReader::ReadPair(const std::vector<TextWord>& words, std::size_t& at,
                               Replacement& pair) {
    if (IsWord(words[at], "LEADING") || IsWord(words[at], "TRAILING")) {
        pair.part =
            IsWord(words[at], "LEADING") ? Replacement::Part::Leading : Replacement::Part::Trailing;
        ++at;
    }
    if (!ReadOperand(words, at, pair.from) || at == words.size() || !IsWord(words[at], "BY")) {
        return false;
    }
    ++at;
    // Text can be replaced by nothing, but nothing cannot be looked for.
    if (!ReadOperand(words, at, pair.by) || pair.from.empty()) {
        return false;
    }
    // A part of a word is replaced by such a part or taken away.
    return pair.part == Replacement::Part::Whole || (pair.from.size() == 1 && pair.by.size() <= 1);
}

bool CKTSourceReader::ReadOperand(const std::vector<TextWord>& words, std::size_t& at,
                                  std::vector<TextWord>& operand) {
    if (at == words.size()) {
        return false;
    }
    if (words[at].kind != WordKind::Pseudo) {
        operand.push_back(words[at]);
        return words[at++].kind != WordKind::Period;
    }
    while (++at < words.size()) {
        if (words[at].kind == WordKind::Pseudo) {
            ++at;
            return true;
        }
        operand.push_back(words[at]);
    }
    return false;
}
