#pragma once

namespace Tavelo
{

/// One visitor for `std::visit` out of several functions.
template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

} // namespace Tavelo
