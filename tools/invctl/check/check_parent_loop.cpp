// Entities that reach one another in a circle: the library finds no top to any path through them.
#include <unordered_map>

#include "access_model.h"
#include "checks.h"

namespace
{

using namespace invctl::check;

constexpr size_t longest_circle_told = 8;

// What climbing from here has come to; each entity is climbed from once.
enum class state : uint8_t { unseen, on_this_climb, done };

std::string circle_text(const access_model &model, const entity &member)
{
    std::string text = label(member);
    size_t count = 0;
    const entity *at = &member;
    do {
        at = model.link_of(*at)->owner;
        if (count < longest_circle_told)
            text += " behind " + label(*at);
        else if (count == longest_circle_told)
            text += " behind ...";
    } while (++count, instance_of(*at) != instance_of(member));
    return text;
}

// The link of the circle that stands last in the document: the one that closed it.
const destination *closing_link(const access_model &model, const entity &member)
{
    const destination *last = model.link_of(member);
    for (const entity *at = last->owner; instance_of(*at) != instance_of(member);) {
        const destination *link = model.link_of(*at);
        last = link > last ? link : last;
        at = link->owner;
    }
    return last;
}

void report_circle(const checked_document &document, const access_model &model, const entity &member,
                   finding_list &found)
{
    const destination *link = closing_link(model, member);
    const entity &reached = *model.entities.at(link->instance());
    report(found, document, link->owner, link->item(),
           std::string(name_of(model.of)) +
               " path comes back to where it began: " + circle_text(model, reached))
        .hint = "a destination must not lead back to its own entity or to one above it";
}

void check_bus(const checked_document &document, bus of, finding_list &found)
{
    const access_model model = access_of(document, of);
    std::unordered_map<uint32_t, state> states;
    std::vector<uint32_t> climb;
    for (const destination &start : model.destinations) {
        auto at = start.leads_to_entity() ? model.entities.find(start.instance()) : model.entities.end();
        climb.clear();
        while (at != model.entities.end()) {
            state &seen = states[at->first];
            if (seen == state::on_this_climb)
                report_circle(document, model, *at->second, found);
            if (seen != state::unseen)
                break;
            seen = state::on_this_climb;
            climb.push_back(at->first);
            const destination *link = model.link_of(*at->second);
            at = link == nullptr ? model.entities.end() : model.entities.find(instance_of(*link->owner));
        }
        for (uint32_t instance : climb)
            states[instance] = state::done;
    }
}

}  // namespace

namespace invctl::check
{

void check_parent_loop(const checked_document &document, finding_list &found)
{
    for (bus each : all_buses)
        check_bus(document, each, found);
}

}  // namespace invctl::check
