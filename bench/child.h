/* Runs measurements in processes of their own. */
#ifndef INV_BENCH_CHILD_H
#define INV_BENCH_CHILD_H

#include "measure.h"

#include <string>
#include <vector>

namespace inv_bench
{

/* Runs a program and reads the figures it prints, a name and a number to a line. Empty when it fails. */
figures run_child(const std::string &program, const std::vector<std::string> &arguments);

void print_figures(const figures &all);

/* The program that runs and the one of that name beside it. */
std::string own_program();
std::string program_beside(const std::string &name);

}  // namespace inv_bench

#endif
