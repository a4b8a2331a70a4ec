#ifndef BENCH_CONTEST_H
#define BENCH_CONTEST_H

#include <regex>

#include "results.h"
#include "verify.h"

namespace bench {

/// The columns of the table, held against each other item by item.
class Contest {
public:
    /// @param wanted A regular expression for the names of the columns that are measured.
    Contest(std::vector<Column> columns, const std::string& wanted) : columns_(std::move(columns)), wanted_(wanted) {}

    /// Draws and checks the item with every column, then measures the columns that draw it. What a column draws wrongly
    /// is said on standard error.
    Row run(const Item& item, Measurement& measurement, int repetitions);

    /// How often the toolkit, the prescribed calls or the floor drew something wrong.
    int failures() const { return failures_; }

private:
    Task task_for(const Shape& shape);
    Expectation expectation_for(const Task& task);
    std::string judge(const Column& column, const Picture& picture, const Task& task,
                      const Expectation& expectation) const;
    bool is_right(const Item& item, const Column& column, const Draw& draw, const Task& task,
                  const Expectation& expectation);
    const Column& column(const std::string& name) const;

    std::vector<Column> columns_;
    std::regex wanted_;
    int failures_ = 0;
};

} // namespace bench

#endif
