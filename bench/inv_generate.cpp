/* inv_generate: writes a line-card document of a given number of entities. */
#include "generate_document.h"

#include <charconv>
#include <cstring>

namespace
{

struct arguments {
    inv_bench::document_options options;
    const char *output = nullptr;
    bool has_entities = false;
};

bool parse_number(const char *text, std::uint32_t &number)
{
    const char *end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, number);
    return error == std::errc{} && stop == end;
}

bool parse(int argc, char **argv, arguments &parsed)
{
    for (int i = 1; i < argc; ++i) {
        const char *value = i + 1 < argc ? argv[i + 1] : nullptr;
        if (std::strcmp(argv[i], "--flat") == 0) {
            parsed.options.indented = false;
            continue;
        }
        if (std::strcmp(argv[i], "--lean") == 0) {
            parsed.options.lean = true;
            continue;
        }
        if (value == nullptr)
            return false;
        if (std::strcmp(argv[i], "--entities") == 0)
            parsed.has_entities = parse_number(value, parsed.options.entities) && parsed.options.entities > 0;
        else if (std::strcmp(argv[i], "--seed") == 0) {
            if (!parse_number(value, parsed.options.seed))
                return false;
        } else if (std::strcmp(argv[i], "-o") == 0)
            parsed.output = value;
        else
            return false;
        ++i;
    }
    return parsed.has_entities && parsed.output != nullptr;
}

}  // namespace

int main(int argc, char **argv)
{
    arguments parsed;
    if (!parse(argc, argv, parsed)) {
        std::fprintf(stderr, "usage: inv_generate --entities N [--flat] [--lean] [--seed S] -o FILE\n");
        return 2;
    }
    std::FILE *out = std::fopen(parsed.output, "wb");
    if (out == nullptr) {
        std::perror(parsed.output);
        return 2;
    }
    const bool written = inv_bench::write_document(out, parsed.options);
    if (std::fclose(out) != 0 || !written) {
        std::fprintf(stderr, "%s: cannot write\n", parsed.output);
        return 2;
    }
    return 0;
}
