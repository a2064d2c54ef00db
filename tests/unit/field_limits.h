// Rows of a table that puts every limit of a decoded item into it and looks at what the record makes of it.
#ifndef TESTS_UNIT_FIELD_LIMITS_H
#define TESTS_UNIT_FIELD_LIMITS_H

#include "support/current_file_fixture.h"

#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <type_traits>

namespace field_limits
{

struct row {
    std::string name;
    std::function<void()> check;  // once with the item given, once without
};

inline void PrintTo(const row &about, std::ostream *out)
{
    *out << about.name;
}

template <class Number>
requires std::is_integral_v<Number> std::vector<Number> limits_of(const Number &)
{
    using limits = std::numeric_limits<Number>;
    return {limits::min(), limits::max(), static_cast<Number>(-1), 0, 1};
}

inline std::vector<double> limits_of(const double &)
{
    return {0, 0.9, -0.9, 1, 99.9, -1, 65535.9, 65536, 4294967295.9, 4294967296};
}

inline std::vector<Hex8BitHexAddressType> limits_of(const Hex8BitHexAddressType &)
{
    return {{1, {0}}, {1, {0xFF}}, {1, {0x80}}, {0, {0}}};
}

inline std::vector<Hex32BitHexAddressType> limits_of(const Hex32BitHexAddressType &)
{
    return {{4, {0, 0, 0, 0}},
            {4, {0xFF, 0xFF, 0xFF, 0xFF}},
            {4, {0x12, 0x34, 0x56, 0x78}},
            {1, {0x80, 0, 0, 0}}};
}

inline std::vector<xb_octets> limits_of(const xb_octets &)
{
    static uint8_t lowest[] = {0, 1}, highest[] = {0xFF, 2};
    return {{0, nullptr}, {0, highest}, {1, lowest}, {2, highest}};
}

template <class Number>
requires std::is_integral_v<Number> int64_t number_of(const Number &value)
{
    return static_cast<int64_t>(value);
}

inline int64_t number_of(const double &value)
{
    return static_cast<int64_t>(value);
}

inline int64_t number_of(const Hex8BitHexAddressType &value)
{
    return value.octets[0];
}

inline int64_t number_of(const Hex32BitHexAddressType &value)
{
    int64_t number = 0;
    for (uint8_t octet : value.octets)
        number = number * 256 + octet;
    return number;
}

inline int64_t number_of(const xb_octets &value)
{
    return value.count == 0 ? 0 : value.octets[0];
}

// A decoded item, named by a member of the value or of its extension part, or by a function.
template <class Item, class Decoded>
auto &item_of(Item item, Decoded &decoded)
{
    if constexpr (std::is_invocable_v<Item, Decoded &>)
        return std::invoke(item, decoded);
    else
        return std::invoke(item, decoded.ext);
}

template <class Record>
uint64_t mask_of(const Record &record)
{
    if constexpr (requires { record.field_present; })
        return record.field_present;
    else
        return 0;
}

template <class Record>
void set_mask(Record &record, uint64_t mask)
{
    if constexpr (requires { record.field_present; })
        record.field_present = static_cast<decltype(record.field_present)>(mask);
}

inline constexpr auto always_given = [](auto &) {};

// The rows of one record type. Build takes (record, decoded) and comes from a builder.
template <class Decoded, class Record, class Build>
class table
{
public:
    table(std::vector<row> &rows_of_all, std::string record_name, Build fill)
        : rows(rows_of_all), name(std::move(record_name)), build(fill)
    {
    }

    // A number that is copied whether or not its item was given.
    template <class Wanted, class Item, class Field>
    void always(const char *field_name, Item item, Field field)
    {
        add_number<Wanted>(field_name, item, field, 0, always_given);
    }

    // A number that is 0 unless `give` marked its item as given; 0 as mask: the field has no bit.
    template <class Wanted, class Item, class Field, class Give>
    void optional(const char *field_name, Item item, Field field, uint64_t mask, Give give)
    {
        add_number<Wanted>(field_name, item, field, mask, give);
        rows.push_back({name + "_" + field_name + "_absent", [=, fill = build] {
                            Decoded decoded = {};
                            for (const auto &value : limits_of(item_of(item, decoded))) {
                                item_of(item, decoded) = value;
                                expect_same_as_bare(fill, decoded);
                            }
                        }});
    }

    // A text of at most `limit` octets, in an array of `size`.
    template <class Item, class Field, class Give = decltype(always_given)>
    void text(const char *field_name, Item item, Field field, size_t limit, size_t size, uint64_t mask = 0,
              Give give = always_given)
    {
        rows.push_back({name + "_" + field_name, [=, fill = build] {
                            const std::string before(limit - 1, 'a');
                            // The fifth is cut inside a character of two octets, the sixth inside one of
                            // four.
                            for (const std::string &text :
                                 {std::string(), std::string("x"), before, before + "b", before + "\xC3\xA9z",
                                  before.substr(1) + "\xF0\x9F\x94\x8C", std::string(3 * size, 'l')})
                                check_text(fill, item, field, limit, size, mask, give, text);
                        }});
    }

private:
    // Octets of a record as far as a builder wrote them; padding included, since records start zeroed.
    struct zeroed {
        Record record;
        zeroed()
        {
            memset(static_cast<void *>(&record), 0, sizeof record);
        }
    };

    static bool same(const zeroed &a, const zeroed &b)
    {
        return memcmp(&a.record, &b.record, sizeof a.record) == 0;
    }

    static void build_into(Build fill, zeroed &into, const Decoded &decoded)
    {
        EXPECT_EQ(fill(&into.record, &decoded), 0u);
        inv_schema_free_eid_chain_list(root_eid);
        root_eid = nullptr;
    }

    static void expect_same_as_bare(Build fill, const Decoded &decoded)
    {
        zeroed bare, built;
        build_into(fill, bare, Decoded{});
        build_into(fill, built, decoded);
        EXPECT_TRUE(same(built, bare)) << "an item that was not given left a trace in the record";
    }

    template <class Wanted, class Item, class Field, class Give>
    void add_number(const char *field_name, Item item, Field field, uint64_t mask, Give give)
    {
        static_assert(std::is_same_v<std::remove_cvref_t<std::invoke_result_t<Field, Record &>>, Wanted>);
        rows.push_back(
            {name + "_" + field_name, [=, fill = build] {
                 Decoded decoded = {};
                 give(decoded);
                 for (const auto &value : limits_of(item_of(item, decoded))) {
                     item_of(item, decoded) = value;
                     zeroed bare, built;
                     build_into(fill, bare, Decoded{});
                     build_into(fill, built, decoded);
                     EXPECT_EQ(std::invoke(field, built.record), static_cast<Wanted>(number_of(value)))
                         << "from " << number_of(value);
                     EXPECT_EQ(mask_of(built.record), mask);
                     std::invoke(field, built.record) = std::invoke(field, bare.record);
                     set_mask(built.record, mask_of(bare.record));
                     EXPECT_TRUE(same(built, bare)) << "the item also changed another field";
                 }
             }});
    }

    template <class Item, class Field, class Give>
    static void check_text(Build fill, Item item, Field field, size_t limit, size_t size, uint64_t mask,
                           Give give, const std::string &text)
    {
        // A block of exactly the text's size: a sanitizer sees every read behind it.
        auto exact = std::make_unique<char[]>(text.size() + 1);
        memcpy(exact.get(), text.c_str(), text.size() + 1);
        Decoded decoded = {};
        item_of(item, decoded) = exact.get();
        give(decoded);
        zeroed built;
        build_into(fill, built, decoded);
        char(&array)[sizeof(std::invoke(field, built.record))] = std::invoke(field, built.record);
        EXPECT_EQ(sizeof array, size);
        EXPECT_EQ(std::string(array, strnlen(array, size)), text.substr(0, limit));
        for (size_t i = std::min(limit, text.size()); i < size; ++i)
            ASSERT_EQ(array[i], '\0') << "octet " << i;
        EXPECT_EQ(mask_of(built.record), mask);
        if constexpr (!std::is_same_v<Give, std::remove_const_t<decltype(always_given)>>) {
            Decoded absent = {};
            item_of(item, absent) = exact.get();
            expect_same_as_bare(fill, absent);
        }
    }

    std::vector<row> &rows;
    std::string name;
    Build build;
};

// The builders take a parent or an owner too: nothing hangs above, and no file is current.
class FieldLimits : public CurrentFile, public testing::WithParamInterface<row>
{
protected:
    void SetUp() override
    {
        CurrentFile::SetUp();
        parser_set_inv_file_instance(nullptr);
    }
};

}  // namespace field_limits

#endif
