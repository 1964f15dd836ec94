#pragma once

/// The mode is the last argument of the operations that add an element. It says which of the given tag and id are kept.
/// With any other value, both names are generated.
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
