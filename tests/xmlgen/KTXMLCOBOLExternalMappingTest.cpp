#include "xmlgen/KTXMLCOBOLExternalMapping.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ElementTree.h"
#include "xmlgen/DictionaryView.h"

namespace {

CKTXMLCOBOLMapping* Add(CKTXMLCOBOLExternalMapping& set, const std::string& cobolName) {
    auto entry = std::make_unique<CKTXMLCOBOLMapping>();
    entry->m_sCobolName = cobolName;
    return set.addXMLCOBOLMapping(std::move(entry));
}

TEST(MappingSet, TheFirstEntryOfANameIsFoundAlsoAfterMoreAreAdded) {
    CKTXMLCOBOLExternalMapping set;
    EXPECT_EQ(set.getFirst(), nullptr);
    EXPECT_EQ(set.findMapping("", 0), nullptr);
    CKTXMLCOBOLMapping* a = Add(set, "REC.A");
    EXPECT_EQ(set.findMapping("REC.B", 0), nullptr);
    CKTXMLCOBOLMapping* b = Add(set, "REC.B");
    CKTXMLCOBOLMapping* again = Add(set, "REC.A");
    EXPECT_EQ(set.findMapping("REC.A", 0), a);
    EXPECT_EQ(set.findMapping("REC.B", 0), b);
    for (const char* other : {"rec.a", "REC.", "REC.A ", ""}) {
        EXPECT_EQ(set.findMapping(other, 0), nullptr) << other;
    }
    EXPECT_EQ(set.getFirst(), a);
    EXPECT_EQ(CKTXMLCOBOLExternalMapping::getNextSibling(b), again);
    EXPECT_EQ(CKTXMLCOBOLExternalMapping::getPrevSibling(b), a);
    set.ClearAndDestroy();
    EXPECT_EQ(set.findMapping("REC.A", 0), nullptr);
    CKTXMLCOBOLMapping* alone = Add(set, "REC.A");
    EXPECT_EQ(set.findMapping("REC.A", 0), alone);
    EXPECT_EQ(alone->getPrevSibling(), nullptr);
}

TEST(MappingSet, AnEntryIsIdleUnlessItsNameIsThatOfADataItem) {
    const auto root = TreeOf(
        "program name=P\n  fileSection\n    fd name=F\n"
        "      group name=R\n"
        "        group\n          numeric name=A\n"
        "        group name=\n          numeric name=B\n"
        "        dataItems name=S\n          numeric name=C\n            numericCondition name=N\n"
        "        numeric name=X.Y redefines=true\n"
        "        Group name=Z\n"
        "        properties\n          numeric name=Q\n");
    const std::vector<std::string> used = {"F.R", "A", "F.R..B", "F.R.S.C", "F.R.X.Y", "A"};
    const std::vector<std::string> idle = {
        "F.R.A", "F.R.",  "F.R.S", "F.R.S.C.N", "F.R.Z", "F.R.properties.Q", "Q", "R", "F",
        "",      "P.F.R", "F.R ",  "f.r",       "R"};
    CKTXMLCOBOLExternalMapping mapping;
    for (const auto& names : {used, idle}) {
        for (const std::string& name : names) {
            Add(mapping, name);
        }
    }
    const CKTDictionaryView view(FindDictionaryRecord(root.get()), &mapping);
    std::vector<std::string> unmatched;
    for (const CKTXMLCOBOLMapping* entry : mapping.FindUnmatched()) {
        unmatched.push_back(entry->m_sCobolName);
    }
    EXPECT_EQ(unmatched, idle);
}

}  // namespace
