#include "Rasterus.h"

#include <gtest/gtest.h>

#include <type_traits>

static_assert(std::is_base_of_v<std::invalid_argument, Rasterus::InvalidArguments>);
static_assert(std::is_base_of_v<std::runtime_error, Rasterus::AbortException>);
static_assert(std::is_nothrow_copy_constructible_v<Rasterus::InvalidArguments>);
static_assert(std::is_nothrow_copy_constructible_v<Rasterus::AbortException>);

TEST(Rasterus, InvalidArgumentsTellsItsText)
{
    EXPECT_STREQ(Rasterus::InvalidArguments().what(), "invalid arguments");
}

TEST(Rasterus, AbortExceptionTellsItsText)
{
    EXPECT_STREQ(Rasterus::AbortException().what(), "abort");
}

TEST(Rasterus, InvalidArgumentsIsCaughtAsInvalidArgument)
{
    EXPECT_THROW(throw Rasterus::InvalidArguments(), std::invalid_argument);
}

TEST(Rasterus, AbortExceptionIsCaughtAsRuntimeError)
{
    EXPECT_THROW(throw Rasterus::AbortException(), std::runtime_error);
}

TEST(Rasterus, InvalidArgumentsIsCaughtByItsOwnName)
{
    EXPECT_THROW(throw Rasterus::InvalidArguments(), Rasterus::InvalidArguments);
}

TEST(Rasterus, AbortExceptionIsCaughtByItsOwnName)
{
    EXPECT_THROW(throw Rasterus::AbortException(), Rasterus::AbortException);
}

TEST(Rasterus, CopiesKeepTheText)
{
    const Rasterus::AbortException first;
    Rasterus::AbortException assigned;

    const Rasterus::AbortException copy(first);
    assigned = first;

    EXPECT_STREQ(copy.what(), "abort");
    EXPECT_STREQ(assigned.what(), "abort");
}
