#ifndef TOOLS_ERROR_FILTER_H
#define TOOLS_ERROR_FILTER_H

#include <cstdio>
#include <memory>

namespace tools {

/// Holds back what is written to standard error, and at its end lets everything pass but the report of test_dtkhd.
class ErrorFilter {
public:
    ErrorFilter();
    ErrorFilter(const ErrorFilter&) = delete;
    ErrorFilter& operator=(const ErrorFilter&) = delete;
    ~ErrorFilter();

    /// Where standard error led before.
    FILE* errors() const { return errors_.get(); }

private:
    struct Closer {
        void operator()(FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<FILE, Closer> errors_, held_;
};

} // namespace tools

#endif
