#pragma once

#include <cstdio>
#include <string>

/// Catches what is written to one of the process's standard streams, byte for byte, as long as it lives.
class Capture {
public:
    explicit Capture(std::FILE* stream);
    ~Capture();
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;

    /// Everything written so far.
    std::string text();

private:
    std::FILE* stream_;
    std::FILE* file_;
    int saved_descriptor_;
};
