// Put in front of every source of a mutated build: tells whether a mutant is the chosen one.
#ifndef MUTATION_MUTANTS_H
#define MUTATION_MUTANTS_H

// Number of the chosen mutant; 0 when the program runs unchanged.
extern unsigned inv_mutant_chosen;

// One octet per mutant that becomes 1 when the program comes by.
extern unsigned char *inv_mutants_seen;

inline bool inv_mutant(unsigned number) noexcept
{
    inv_mutants_seen[number] = 1;
    return number == inv_mutant_chosen;
}

#endif
