#pragma once

namespace gfc::config {

// One visitor made of a function for each alternative.
template <class... Fs>
struct Overload : Fs... {
    using Fs::operator()...;
};
template <class... Fs>
Overload(Fs...) -> Overload<Fs...>;

} // namespace gfc::config
