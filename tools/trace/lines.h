#ifndef TOOLS_TRACE_LINES_H
#define TOOLS_TRACE_LINES_H

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace trace {

/// What a line says, piece by piece.
class Lines {
public:
    explicit Lines(const std::string& text) : text_(text) {}

    /// Goes to the next line that says something. Lines that begin with # are for people.
    bool next()
    {
        for (std::string line; std::getline(text_, line);) {
            ++number_;
            words_.clear();
            words_.str(line);
            words_ >> std::ws;
            if (words_.peek() != std::istringstream::traits_type::eof() && words_.peek() != '#')
                return true;
        }
        return false;
    }

    [[noreturn]] void fail(const std::string& what) const
    {
        throw std::runtime_error("line " + std::to_string(number_) + " is wrong: " + what);
    }

    std::string word()
    {
        std::string result;
        if (!(words_ >> result))
            fail("something is missing");
        return result;
    }

    void require_end()
    {
        std::string rest;
        if (words_ >> rest)
            fail("'" + rest + "' is too much");
    }

    std::size_t number() const { return number_; }

private:
    std::istringstream text_, words_;
    std::size_t number_ = 0;
};

/// The pieces of a word between separators; the last one may be ended by one, too.
inline std::vector<std::string> split(const std::string& word, char separator)
{
    std::vector<std::string> parts;
    std::istringstream stream(word);
    for (std::string part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

} // namespace trace

#endif
