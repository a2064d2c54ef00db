// A test's look at what a document left behind.
#ifndef TESTS_HOSTILE_NOTHING_LEFT_H
#define TESTS_HOSTILE_NOTHING_LEFT_H

#include "hostile/document_cost.h"

#include <gtest/gtest.h>

namespace hostile
{

inline void expect_nothing_left(const cost &of_document)
{
    EXPECT_EQ(of_document.left.blocks, 0);
    EXPECT_EQ(of_document.left.mapped_octets, 0);
}

}  // namespace hostile

#endif
