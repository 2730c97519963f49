#include "xmlgen/KTXMLCOBOLExternalMapping.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

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

}  // namespace
