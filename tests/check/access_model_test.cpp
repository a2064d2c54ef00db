#include "access_model.h"

#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;
using invctl::check::access_model;
using invctl::check::access_of;
using invctl::check::bus;

TEST(AccessModel, lists_the_destinations_of_one_bus_in_document_order)
{
    auto document = decoded(card(mux("M", 10, i2c_port("0A", destination(20) + destination(21, "FAN", "1"))) +
                                 switch_to("S", 11, 20) + sensor("A", 20)));
    const access_model i2c = access_of(*document, bus::i2c);
    ASSERT_EQ(i2c.destinations.size(), 2u);
    EXPECT_EQ(i2c.destinations[0].owner, &document->entities[1]);
    EXPECT_EQ(i2c.destinations[0].channel, 10u);
    EXPECT_EQ(i2c.destinations[0].instance(), 20u);
    EXPECT_TRUE(i2c.destinations[0].leads_to_entity());
    EXPECT_FALSE(i2c.destinations[1].leads_to_entity());
    EXPECT_EQ(i2c.destinations[1].applicable, 1u);
    EXPECT_EQ(access_of(*document, bus::pcie).destinations.size(), 1u);
}

TEST(AccessModel, keeps_the_last_way_to_an_entity)
{
    auto document = decoded(card(mux_to("M", 10, 20) + mux_to("N", 11, 20) + sensor("A", 20)));
    const access_model model = access_of(*document, bus::i2c);
    const invctl::check::entity &a = document->entities.back();
    ASSERT_NE(model.link_of(a), nullptr);
    EXPECT_EQ(model.link_of(a)->owner, &document->entities[2]);
    EXPECT_EQ(model.link_of(document->entities[0]), nullptr);
}

TEST(AccessModel, leaves_out_what_is_not_in_the_tree)
{
    auto document = decoded(fan_tray(fan("F", 2, module("B", 4, mux_to("M", 10, 20) + sensor("A", 20)))));
    const access_model model = access_of(*document, bus::i2c);
    EXPECT_TRUE(model.destinations.empty());
    EXPECT_FALSE(model.entities.contains(20));
    EXPECT_TRUE(model.entities.contains(2));
}

TEST(AccessModel, labels_entities_by_name_and_instance)
{
    auto document = decoded(card(sensor("A&quot;&#10;", -1)));
    EXPECT_EQ(invctl::check::label(document->entities[1]), R"("A\"\x0a" (65535))");
    EXPECT_EQ(invctl::check::quoted(nullptr), "\"?\"");
}
