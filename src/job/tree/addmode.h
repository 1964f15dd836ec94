#pragma once

/// The mode that ends the operations which add an element: whose names count. Any other value generates
/// both.
namespace cabledoc::addmode {

constexpr int GivenId = 1;
constexpr int GivenNames = 2;
constexpr int GivenTag = 3;

constexpr bool keepsTag(int mode)
{
    return mode == GivenNames || mode == GivenTag;
}

constexpr bool keepsId(int mode)
{
    return mode == GivenNames || mode == GivenId;
}

} // namespace cabledoc::addmode
