// What a routine says when it fails.
#pragma once

#include <gtest/gtest.h>

#include "platform/schijf/fout.h"

namespace plexoran {

/// The error of what must have failed.
template <class T> Fout FoutVan(const Uitkomst<T>& uitkomst)
{
    EXPECT_FALSE(uitkomst);
    return uitkomst ? Fout() : uitkomst.error();
}

} // namespace plexoran
