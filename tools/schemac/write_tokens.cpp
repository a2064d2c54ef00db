#include <set>

#include "names.h"
#include "text.h"
#include "writers.h"

namespace schemac
{

bool write_tokens_header(const schema &s, std::string &text, std::string &message)
{
    constexpr const char *guard = "INV_PARSER_INVENTORY_TOKENS_H";
    std::set<std::string> used;
    text = header_begin(guard, {}) +
           comment("The tokens of inventory documents as C enumerators, with the codes that records hold. A "
                   "slash in a "
                   "token is an underscore here.") +
           "\n";
    for (const enumeration &e : s.enumerations) {
        text += comment(e.documentation) + "enum " + e.name + " {\n";
        for (size_t code = 0; code < e.tokens.size(); ++code) {
            const std::string name = enumerator(e.tokens[code]);
            if (!used.insert(name).second) {
                message = e.name + ": the enumerator " + name + " exists already";
                return false;
            }
            text +=
                "    " + name + " = " + std::to_string(code) + (code + 1 < e.tokens.size() ? ",\n" : "\n");
        }
        text += "};\n\n";
    }
    text.pop_back();
    text += header_end(guard);
    return true;
}

}  // namespace schemac
