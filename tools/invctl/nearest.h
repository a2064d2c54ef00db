// The word that somebody who mistyped may have meant.
#ifndef INVCTL_NEAREST_H
#define INVCTL_NEAREST_H

#include <span>
#include <string>

namespace invctl
{

// The nearest of the words by letters left out, added, changed or swapped with their neighbour; empty when
// none is near: at most one mistake in three letters, and never the word itself. Of equally near words
// the first one.
std::string nearest_word(const std::string &typed, std::span<const std::string> words);

}  // namespace invctl

#endif
