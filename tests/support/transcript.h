#pragma once

#include <directfb.h>
#include <string>
#include <vector>

namespace fake {

/// Formats like printf.
[[gnu::format(printf, 1, 2)]] std::string text(const char* format, ...);

/// What the fakes were asked to do, one line per call, and which of the calls are told to fail.
///
/// A call that fails ends with its result: "target.SetColorIndex(2) = 422552500".
class Transcript {
public:
    /// Appends a call and answers its result: 0 unless it is told to fail.
    DFBResult call(const std::string& line);

    /// Appends a call that has no result.
    void note(const std::string& line);

    /// Lets the n-th call from now on fail; 1 is the next one.
    void fail_call(int n, DFBResult result);

    /// Lets every call fail whose line starts with `start`.
    void fail_every(const std::string& start, DFBResult result);

    /// The first call that failed and which of its kind it was, "target.GetSize() #2"; empty as long as none has.
    const std::string& failed_call() const { return failed_call_; }

    /// All lines, each ended by a newline, after one newline of their own; forgets them.
    std::string take();

    const std::vector<std::string>& lines() const { return lines_; }

    /// Forgets the lines and the failures.
    void reset() { *this = Transcript(); }

private:
    DFBResult result_of(const std::string& line);

    struct Rule {
        std::string start;
        DFBResult result;
    };

    std::vector<std::string> lines_;
    std::vector<Rule> rules_;
    int calls_until_failure_ = 0;
    DFBResult failure_ = DFB_OK;
    std::string failed_call_;
};

Transcript& transcript();

/// The lines since the last time, to be compared with a raw string that starts and ends with a newline.
inline std::string calls()
{
    return transcript().take();
}

/// Only the lines that contain `part`.
std::string calls_with(const std::string& part);

} // namespace fake
