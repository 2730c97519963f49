#include "xml/Faults.h"

#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

#include "xml/KTDOMParser.h"

namespace {

TEST(Faults, EachKindSaysWhatItIs) {
    const CKTDOMParser library;
    struct Row {
        std::function<void()> fault;
        std::string description;
    };
    const std::vector<Row> rows = {
        {[] { throw std::runtime_error("a reason"); }, "a reason"},
        {[] { throw xercesc::OutOfMemoryException(); }, "Out of memory"},
        {[] { throw xercesc::SAXException(u"Stra\u00dfe"); }, "Stra?e"},
        {[] { throw 1; }, "Unknown fault"},
    };
    for (const auto& row : rows) {
        std::string description;
        try {
            row.fault();
        } catch (...) {
            description = DescribeFault();
        }
        EXPECT_EQ(description, row.description);
    }
}

}  // namespace
