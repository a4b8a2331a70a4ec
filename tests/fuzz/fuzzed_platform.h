#pragma once

namespace fuzz {

/// The platform's answers: whether there is an engine, and after how many of its calls one fails; 0 for none.
struct Platform {
    bool has_engine = false;
    unsigned calls_until_failure = 0;
};

Platform& platform();

} // namespace fuzz
