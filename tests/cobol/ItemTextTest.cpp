#include "cobol/ItemText.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

// Seven characters stand in the text itself, eight do not.
TEST(ItemText, HoldsSharesAndChangesTextsOfEveryLength) {
    for (const std::string given :
         {"", "a", "a_b_c_d", "a_b_c_d_", "a_longer_text_than_a_string"}) {
        SCOPED_TRACE(given);
        CKTItemText copied;
        copied = given;
        CKTItemText shared;
        shared.Share(given);
        EXPECT_EQ(copied, given);
        EXPECT_EQ(shared, copied);
        EXPECT_EQ(shared.empty(), given.empty());
        EXPECT_EQ(shared.View().data() == given.data(), given.size() > 7);

        CKTItemText second(shared);
        second.Replace('_', '-');
        std::string replaced = given;
        for (std::size_t i = 0; (i = replaced.find('_', i)) != std::string::npos;) {
            replaced[i] = '-';
        }
        EXPECT_EQ(second, replaced);
        EXPECT_EQ(shared, given);
        second.Assign(second, "-count");
        EXPECT_EQ(second, replaced + "-count");

        const CKTItemText third = second;
        shared = second;
        second = copied;
        copied = std::move(shared);
        EXPECT_EQ(copied, third);
        EXPECT_EQ(second, given);
        CKTItemText moved(std::move(copied));
        EXPECT_EQ(moved, replaced + "-count");
        moved = std::string_view();
        EXPECT_EQ(moved, "");
    }
}

}  // namespace
