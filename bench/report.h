#ifndef BENCH_REPORT_H
#define BENCH_REPORT_H

#include "results.h"

namespace bench {

/// Prints the toolkit's rows, with a star where a goal is missed, and how the peers did.
void print_tables(const std::vector<Row>& rows);

/// Writes one line for each cell.
///
/// @throws std::runtime_error when the file cannot be written.
void write_csv(const std::string& file, const std::vector<Row>& rows);

/// Writes every run in Google Benchmark's format.
void write_json(const std::string& file, const std::vector<benchmark::BenchmarkReporter::Run>& runs);

/// Draws a chart of @p csv into the SVG file @p chart with a script for gnuplot.
void draw_chart(const std::string& script, const std::string& csv, const std::string& chart);

} // namespace bench

#endif
