#include "finding.h"

#include "checked_document.h"

namespace
{

using namespace invctl::check;

finding &add(finding_list &found, std::string file, std::string text)
{
    finding &added = found.all.emplace_back();
    added.row = found.current;
    added.file = std::move(file);
    added.text = std::move(text);
    return added;
}

}  // namespace

namespace invctl::check
{

finding &report(finding_list &found, const checked_document &in, const entity *of, const void *item,
                std::string text)
{
    finding &added = add(found, in.file, std::move(text));
    std::optional<place> where = place_of(in, item);
    if (!where && of != nullptr && item != nullptr)
        where = of->where;
    if (of != nullptr) {
        added.about = of;
        added.names = of->names;
        added.eid = of->eid;
    }
    if (where && where->line != 0) {
        added.where = *where;
        show_source(in, added, false);
    }
    return added;
}

finding &report_file(finding_list &found, std::string file, place where, std::string text)
{
    finding &added = add(found, std::move(file), std::move(text));
    added.where = where;
    return added;
}

const char *word_of(severity level)
{
    static const char *const words[] = {"note", "warning", "error"};
    return words[static_cast<size_t>(level)];
}

}  // namespace invctl::check
