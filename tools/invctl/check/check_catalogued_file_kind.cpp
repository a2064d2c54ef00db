// Files of another kind than the hardware type says: opening them fails, or gives an empty tree.
#include "catalogue_model.h"
#include "output.h"

namespace invctl::check
{

void check_catalogued_file_kind(const catalogue_check &catalogue, finding_list &found)
{
    for (const catalogued_unit &unit : units_of(catalogue)) {
        // "Any type" cannot be wrong.
        if (unit.columns.pi_hw_type.any)
            continue;
        const std::string type = "pi_hw_type " + std::to_string(unit.columns.pi_hw_type.value);
        const std::string_view column =
            std::string_view(unit.line->text).substr(unit.line->text.find_first_not_of(" \t"));
        const std::string_view number = column.substr(0, column.find_first_of(" \t"));
        const std::optional<document_kind> kind = kind_of_hardware(unit.columns.pi_hw_type.value);
        if (!kind)
            report_line(found, catalogue, *unit.line, number, type + " stands for no kind of document").hint =
                "a unit of this type can never be opened";
        else if (unit.document != nullptr && unit.document->root != nullptr && unit.document->kind != *kind)
            report_line(found, catalogue, *unit.line, unit.columns.file,
                        printable(std::string(unit.columns.file).c_str()) + " is a \"" +
                            root_of_kind(unit.document->kind) + "\" document; " + type + " stands for \"" +
                            root_of_kind(*kind) + "\"")
                .hint = "correct the type, or name another file";
    }
}

}  // namespace invctl::check
