#include "kcomp/SourceReader.h"

#include <array>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ScratchFiles.h"

namespace {

std::string Shown(const std::vector<TextWord>& words) {
    std::string shown;
    for (const TextWord& word : words) {
        const bool period = word.kind == WordKind::Period;
        shown += shown.empty() || word.glued || period ? "" : " ";
        shown += (word.kind == WordKind::Fault ? "!" : "") + word.text;
    }
    return shown;
}

// Sources in the directory src of a scratch directory, copy files anywhere in it.
class SourceReaderTest : public testing::Test {
protected:
    SourceReaderTest() { std::filesystem::create_directory(m_Scratch.Path() / "src"); }

    void Write(const std::string& name, const std::string& text) {
        std::filesystem::create_directories((m_Scratch.Path() / name).parent_path());
        WriteFile(m_Scratch.Path() / name, text);
    }

    std::vector<TextWord> Words(const std::string& text) {
        Write("src/main.cbl", text);
        const std::string source = PathOf("src/main.cbl");
        const CKTCopyLibrary library(source, PathOf("one") + "::" + PathOf("two"));
        auto words = CKTSourceReader(m_Report, library).Read(source, std::nullopt);
        return words ? std::move(*words) : std::vector<TextWord>();
    }

    std::string Read(const std::string& text) { return Shown(Words(text)); }

    [[nodiscard]] std::string PathOf(const std::string& name) const {
        return (m_Scratch.Path() / name).string();
    }

    CKTScratchDirectory m_Scratch;
    std::ostringstream m_Complaints;
    CKTReport m_Report{m_Complaints};
};

TEST_F(SourceReaderTest, CopyFilesStandBesideTheSourceOrOnThePath) {
    Write("src/a", "BESIDE");
    Write("one/a", "ONE");
    Write("two/a", "TWO");
    Write("one/b.x.cpy", "ONE");
    Write("two/b.x", "TWO");
    Write("two/c.CBL", "LOWER");
    Write("two/D.cob", "UPPER");
    Write("src/sub/f.cpy", "BELOW");
    Write("src/g", "OF A DIRECTORY");
    std::filesystem::create_directory(m_Scratch.Path() / "src/G");
    EXPECT_EQ(Read("COPY a. copy b.x. COPY C SUPPRESS. COPY d SUPPRESS PRINTING."),
              "BESIDE ONE LOWER UPPER");
    EXPECT_EQ(Read("COPY 'sub/f'. COPY \"" + PathOf("two/a") + "\". COPY G. END"),
              "BELOW TWO OF A DIRECTORY END");
    EXPECT_EQ(Read("01 A. COPY \"C\". COPY E. B."),
              "01 A. !Copy file \"C\" is not found !Copy file \"E\" is not found B.");
}

TEST_F(SourceReaderTest, WordsKeepTheirFileAndLine) {
    Write("src/fixed", "      * A note.\n       05 :A:-B\n           VALUE 'a\n      -    'b'.");
    const auto words = Words("01 R.\nCOPY\nfixed REPLACING\n==:A:== BY\nC.\n05 D.");
    std::string places;
    for (const TextWord& word : words) {
        const std::string name = std::filesystem::path(word.place.file).filename();
        places += word.text.substr(0, 5) + "@" + name + std::to_string(word.place.line) + " ";
    }
    EXPECT_EQ(places,
              "01@main.cbl1 R@main.cbl1 .@main.cbl1 05@fixed2 C-B@fixed2 VALUE@fixed3 'a   @fixed3 "
              ".@fixed4 05@main.cbl6 D@main.cbl6 .@main.cbl6 ");
    EXPECT_EQ(Words("\nCOPY\nNONE.").at(0).place.line, 2U);
}

TEST_F(SourceReaderTest, EachFileHasItsOwnFormat) {
    Write("src/fixed", "000100 02 A.\n      * 02 B.\n");
    Write("src/free", "02 C. *> 02 D.\n   02 E.\n");
    Write("src/unclear", "           02 F" + std::string(70, ' ') + "G.\n");
    EXPECT_EQ(Read("\xEF\xBB\xBF*> 01 Z.\n01 R. COPY fixed. COPY free. COPY unclear."),
              "01 R. 02 A. 02 C. 02 E. 02 F G.");
    EXPECT_EQ(Read("000100 01 R. COPY fixed. COPY free.\n000200     COPY unclear. 02 H."),
              "01 R. 02 A. 02 C. 02 E. 02 F 02 H.");
    const CKTCopyLibrary library("", "");
    CKTSourceReader reader(m_Report, library);
    Write("src/told", "000100 01 A.\n");
    EXPECT_EQ(Shown(reader.Read(PathOf("src/told"), SourceFormat::Free).value()), "000100 01 A.");
    EXPECT_FALSE(reader.Read(PathOf("src"), SourceFormat::Free).has_value());
    EXPECT_EQ(m_Complaints.str(), PathOf("src") + "(1) : Error : The file cannot be read\n");
}

TEST_F(SourceReaderTest, ReplacingComparesWholeWords) {
    const std::vector<std::array<const char*, 3>> rows = {
        {"A a-B A-B A.", "A BY Z", "Z a-B A-B Z."},
        {"05 A PIC X(5) VALUE 'A'.",
         "5 BY 10 'A' BY \"b\" X BY ==N==", "05 A PIC N(10) VALUE \"b\"."},
        {"'A' 'a' \"A\"", "'A' BY ZERO", "ZERO 'a' \"A\""},
        {"a, B; C A B", "==A B== BY ==D==", "D C D"},
        {"A B C", "A BY B, B BY C, C BY A, A BY D", "B C A"},
        {"A A B", "==A B== BY == == A BY Z", "Z"},
        {"05 A PIC X. 05 B.", "==05 A PIC X.== BY ====", "05 B."},
        {"05 A PIC X. 05 B.", "==A PIC X. == BY ==A PIC 9,== ==B.== BY ==C.==", "05 A PIC 9 05 C."},
        {":P:-NAME IN-:P: :P:", "==:P:== BY ==X==", "X-NAME IN-X X"},
        {"A:P:B:P: :P:-C", "==:P:== BY ====", "AB -C"},
        {"05 :P::S:NAME", "==:P:== BY ==== ==:S:== BY ====", "05 NAME"},
        {"(P)(PIC)", "==(P)== BY ==Q R==", "Q R(PIC)"},
        {"P-A Q-P-A P p-b", "LEADING ==P-== BY ==X-==", "X-A Q-P-A P X-b"},
        {"A-S A-S-B S a-s", "TRAILING ==-S== BY ====", "A A-S-B S a"},
        {"P-A P- 'P-A'", "LEADING ==P-== BY ====", "A 'P-A'"},
    };
    for (const auto& [copied, phrase, expected] : rows) {
        Write("src/copied", copied);
        EXPECT_EQ(Read("COPY copied REPLACING " + std::string(phrase) + "."), expected) << phrase;
    }
    // An outer phrase sees what an inner one has made.
    Write("src/inner", "05 :P:-ID PIC :S:.");
    Write("src/outer", "02 :P:. COPY inner REPLACING ==:S:== BY ==9(:N:)==. 02 END-:P:.");
    EXPECT_EQ(Read("COPY outer REPLACING ==:P:== BY ==CUST== ==:N:== BY ==6==."),
              "02 CUST. 05 CUST-ID PIC 9(6). 02 END-CUST.");
}

TEST_F(SourceReaderTest, WhatCannotBeCopiedIsAFaultInItsPlace) {
    Write("src/me", "A COPY me. B");
    EXPECT_EQ(Read("COPY me."), "A !Copy file \"me\" copies itself B");
    for (int i = 0; i < 60; ++i) {
        Write("src/n" + std::to_string(i), "COPY \"n" + std::to_string(i + 1) + "\".");
    }
    EXPECT_EQ(Read("COPY n0. A"), "!The copy files are nested too deep A");
    const std::vector<std::array<const char*, 2>> rows = {
        {"COPY. A", "!COPY names no copy file A"},
        {"A COPY", "A !COPY names no copy file"},
        {"COPY me IN lib. A", "!COPY from a named library is not supported A"},
        {"COPY me", "!COPY does not end with a period"},
    };
    for (const auto& [statement, expected] : rows) {
        EXPECT_EQ(Read(statement), expected);
    }
    for (const std::string phrase : {"A B.", "A BY.", "==== BY A.", "==A== BY ==B.", "A BY B C.",
                                     "LEADING ==A B== BY C.", "TRAILING A BY ==B C==."}) {
        EXPECT_EQ(Read("COPY me REPLACING " + phrase),
                  "!The REPLACING phrase of COPY cannot be read");
    }
}

TEST_F(SourceReaderTest, CopiesThatGrowWithoutEndAreStopped) {
    for (int i = 0; i < 40; ++i) {
        const std::string copy = "COPY \"f" + std::to_string(i + 1) + "\". ";
        Write("src/f" + std::to_string(i), copy + copy);
    }
    Write("src/f40", "A");
    EXPECT_NE(Read("COPY \"f0\".").find("!The copy files hold too much text"), std::string::npos);
    Write("src/outer", "A COPY \"f0\".");
    EXPECT_EQ(Read("COPY outer REPLACING A BY ==B C==."), "!The copy files hold too much text");
    const TextWord word{WordKind::Word, false, "A", {}};
    const std::vector<Replacement> pairs = {{Replacement::Part::Whole, {word}, {word, word, word}}};
    EXPECT_EQ(ReplaceWords({word, word}, pairs, 6).value().size(), 6U);
    EXPECT_FALSE(ReplaceWords({word, word, word}, pairs, 5).has_value());
}

}  // namespace
