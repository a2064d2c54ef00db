// A small document of a kind whose opening meets trouble: what has to hold before, meanwhile and afterwards.
#ifndef TESTS_FAULTS_READING_WORLD_H
#define TESTS_FAULTS_READING_WORLD_H

#include "faults/fault_world.h"

#include <gtest/gtest.h>

#include <string>

namespace fault_world
{

// What an opening under trouble has come to.
enum class ending { refused, right, other };

class ReadingFaults : public testing::TestWithParam<unit>
{
protected:
    void SetUp() override;
    void TearDown() override;

    // Opens the file in place of the unit's document and closes it. Neither leaves a descriptor, and a
    // refusal is traced.
    ending open_instead(const std::string &path);
    ending open_under_trouble()
    {
        return open_instead(GetParam().path);
    }
    // The document opens and answers as ever, and so do the files beside it.
    void expect_all_well();

    // What the runtime says of a file that it reads to its end: status and parameters.
    static std::string diagnosis(const std::string &path);

private:
    std::unique_ptr<load_world::fresh_library> library;
    std::unique_ptr<bystanders> beside;
    std::vector<question> questions;
    std::vector<answer> answers;
    size_t descriptors_before = 0;
};

std::string unit_name(const testing::TestParamInfo<unit> &info);

}  // namespace fault_world

#endif
