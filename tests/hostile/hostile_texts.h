// Documents that are made to cost as much as they can.
#ifndef TESTS_HOSTILE_HOSTILE_TEXTS_H
#define TESTS_HOSTILE_HOSTILE_TEXTS_H

#include <cstdint>
#include <string>

namespace hostile
{

constexpr unsigned million = 1000000;

// A module document: a prolog, more attributes of its root, and its content.
std::string module_text(const std::string &prolog, const std::string &attributes, const std::string &content);

std::string repeated(const std::string &piece, unsigned times);
// "%" stands for the number, from 0 on.
std::string numbered(const std::string &piece, unsigned times);

// Entities e0 to e9, each of ten of the one before.
std::string laughs_of(const std::string &seed);

// A multiplexer with this xml instance, and one port to each of the instances from `first` on.
std::string mux(unsigned instance, unsigned first, unsigned ports);

}  // namespace hostile

#endif
