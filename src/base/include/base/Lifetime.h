#pragma once

#include <stop_token>

namespace vantrell {

/// Ends whatever waits with one of its tokens, at the latest when it goes. Main thread only: what is ended
/// goes on in the call that ends it, and must not wait anew.
class Lifetime {
  public:
    Lifetime() = default;
    ~Lifetime() { end(); }
    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;

    [[nodiscard]] std::stop_token token() const { return source_.get_token(); }
    // By a copy, since what is ended may take this with it.
    void end() { std::stop_source(source_).request_stop(); }

  private:
    std::stop_source source_;
};

}  // namespace vantrell
