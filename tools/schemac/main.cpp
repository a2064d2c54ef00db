// schemac XSD --source-dir DIR --header-dir DIR [--check]
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>

#include "read_schema.h"
#include "writers.h"

namespace
{

enum exit_code { exit_ok = 0, exit_different = 1, exit_failed = 2 };

struct options {
    std::string schema;
    std::string source_dir;
    std::string header_dir;
    bool check = false;
};

struct output {
    std::string path;
    std::string text;
};

bool parse_options(int argc, char **argv, options &o)
{
    for (int i = 1; i < argc; ++i) {
        const bool has_value = i + 1 < argc;
        if (std::strcmp(argv[i], "--check") == 0)
            o.check = true;
        else if (std::strcmp(argv[i], "--source-dir") == 0 && has_value)
            o.source_dir = argv[++i];
        else if (std::strcmp(argv[i], "--header-dir") == 0 && has_value)
            o.header_dir = argv[++i];
        else if (argv[i][0] != '-' && o.schema.empty())
            o.schema = argv[i];
        else
            return false;
    }
    return !o.schema.empty() && !o.source_dir.empty() && !o.header_dir.empty();
}

bool make_outputs(const schemac::schema &s, const options &o, std::vector<output> &outputs,
                  std::string &message)
{
    using namespace schemac;
    const std::string dir = o.source_dir + "/";
    std::string tokens;
    if (!write_tokens_header(s, tokens, message))
        return false;
    outputs = {{dir + "OrvelianInventorySchema.h", write_records_header(s)},
               {dir + "OrvelianInventorySchema.cpp", write_records_source(s)},
               {dir + "OrvelianInventorySchemaDec.h", write_decoders_header(s)},
               {dir + "OrvelianInventorySchemaDec.cpp", write_decoders_source(s)},
               {dir + "inventory_Derivations.h", write_derivations_header(s)},
               {dir + "inventory_Derivations.cpp", write_derivations_source(s)},
               {dir + "inventory_DerivationsDec.h", write_choosers_header(s)},
               {dir + "inventory_DerivationsDec.cpp", write_choosers_source(s)},
               {o.header_dir + "/inventory_tokens.h", tokens}};
    return true;
}

bool holds(const output &out)
{
    std::ifstream file(out.path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return file && text.str() == out.text;
}

// Files that are right already keep their time, so that nothing is built again for them.
int put(const output &out, bool check)
{
    if (holds(out))
        return exit_ok;
    if (check) {
        std::fprintf(stderr, "schemac: %s differs from what the schema gives\n", out.path.c_str());
        return exit_different;
    }
    std::ofstream file(out.path, std::ios::binary | std::ios::trunc);
    file << out.text;
    file.close();
    if (!file) {
        std::fprintf(stderr, "schemac: %s cannot be written\n", out.path.c_str());
        return exit_failed;
    }
    return exit_ok;
}

}  // namespace

int main(int argc, char **argv)
{
    options o;
    if (!parse_options(argc, argv, o)) {
        std::fputs("usage: schemac XSD --source-dir DIR --header-dir DIR [--check]\n", stderr);
        return exit_failed;
    }
    schemac::xml_node tree;
    schemac::schema s;
    std::vector<output> outputs;
    std::string message;
    if (!schemac::read_tree(o.schema, tree, message) || !schemac::read_schema(tree, s, message) ||
        !make_outputs(s, o, outputs, message)) {
        std::fprintf(stderr, "schemac: %s\n", message.c_str());
        return exit_failed;
    }
    int worst = exit_ok;
    for (const output &out : outputs)
        worst = std::max(worst, put(out, o.check));
    return worst;
}
