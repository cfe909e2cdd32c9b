#pragma once

namespace vantrell {

/// Makes one visitor of several lambdas, so that std::visit fails to compile when a case is left out.
template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

}  // namespace vantrell
