#include "nearest.h"

#include <algorithm>
#include <vector>

namespace
{

// Longer texts are no mistyped words; the bound keeps the effort for hostile ones small.
constexpr size_t longest_word = 128;

// Mistakes that lead from one word to the other, row by row of the usual table; three rows are kept, since
// a swap looks back two.
size_t mistakes_between(const std::string &from, const std::string &to)
{
    std::vector<size_t> before_last(to.size() + 1), last(to.size() + 1), row(to.size() + 1);
    for (size_t column = 0; column <= to.size(); ++column)
        last[column] = column;
    for (size_t i = 1; i <= from.size(); ++i) {
        row[0] = i;
        for (size_t j = 1; j <= to.size(); ++j) {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (from[i - 1] != to[j - 1])});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                row[j] = std::min(row[j], before_last[j - 2] + 1);
        }
        std::swap(before_last, last);
        std::swap(last, row);
    }
    return last[to.size()];
}

}  // namespace

namespace invctl
{

std::string nearest_word(const std::string &typed, std::span<const std::string> words)
{
    if (typed.size() > longest_word)
        return "";
    std::string nearest;
    size_t fewest = std::max<size_t>(typed.size() / 3, 1) + 1;
    for (const std::string &word : words) {
        size_t mistakes = word.size() > longest_word ? fewest : mistakes_between(typed, word);
        if (mistakes > 0 && mistakes < fewest) {
            fewest = mistakes;
            nearest = word;
        }
    }
    return nearest;
}

}  // namespace invctl
