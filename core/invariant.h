#pragma once
// A rule that must hold whatever was played, and what is thrown when it does not.

#include <fmt/format.h>

#include <stdexcept>

// A match that broke a rule of its own; what() says which.
struct InvarianteRoto : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// InvarianteRoto when the rule does not hold; its words are put together only then.
template <class... A>
void Exige(bool cumple, fmt::format_string<const A&...> regla, const A&... datos) {
    if (!cumple)
        throw InvarianteRoto(fmt::format(regla, datos...));
}
