// SPDX-License-Identifier: MIT
// What the property panel says of a building and of the city.
#include "SmallCity.h"
#include "support/GTest.h"

#include <city/Address.h>
#include <city/Random.h>
#include <host/Language.h>
#include <objects/Figures.h>
#include <objects/ObjectRows.h>

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>

#include <algorithm>
#include <set>
#include <string>

namespace
{
using Rows = CeGuiMainFrame::PropertyRows;

class LanguageOf
{
public:
    explicit LanguageOf(const wchar_t* language) { host::UseLanguage(language); }
    ~LanguageOf() { CParamConfig::getInstance()->reload(); }
    LanguageOf(const LanguageOf&) = delete;
    LanguageOf& operator=(const LanguageOf&) = delete;
};

bool HasChinese(const CString& text)
{
    for (int i = 0; i < text.GetLength(); ++i)
    {
        if (text[i] >= 0x2E80)
        {
            return true;
        }
    }
    return false;
}

std::string ValueOf(const Rows& rows, const wchar_t* name)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [name](const auto& row) { return row.first == name; });
    return found == rows.end() ? "no such row" : CString2string(found->second);
}
} // namespace

TEST(Figures, are_grouped_by_thousands)
{
    const struct
    {
        double value;
        int decimals;
        const char* text;
    } rows[] = {{0, 0, "0"},
                {999, 0, "999"},
                {1000, 0, "1,000"},
                {1234567.891, 2, "1,234,567.89"},
                {999.96, 1, "1,000.0"},
                {-1234.5, 1, "-1,234.5"},
                {-12, 0, "-12"},
                {0.25, 2, "0.25"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(CString2string(host::Figure(row.value, row.decimals)), row.text);
    }
}

TEST(Figures, of_memory_are_in_the_largest_unit_that_they_fill)
{
    const struct
    {
        double bytes;
        const char* text;
    } rows[] = {{0, "0 B"},
                {1023, "1,023 B"},
                {1024, "1.0 KB"},
                {1536, "1.5 KB"},
                {3.5 * 1024 * 1024, "3.5 MB"},
                {5.0 * 1024 * 1024 * 1024 * 1024, "5,120.0 GB"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(CString2string(host::Memory(row.bytes)), row.text);
    }
}

TEST(BuildingRows, are_at_least_fifteen_and_complete_for_every_building_in_both_languages)
{
    for (const wchar_t* language : {L"zh-CN", L"en"})
    {
        const LanguageOf spoken(language);
        const bool chinese = CString(language) == L"zh-CN";
        for (std::size_t i = 0; i < WholeCity().buildings.size(); i += 97)
        {
            const city::Building& building = WholeCity().buildings[i];
            const Rows rows = host::BuildingRows(WholeCity(), building);
            ASSERT_GE(rows.size(), 15u);
            std::set<CString> names;
            int longNames = 0;
            for (const auto& [name, value] : rows)
            {
                EXPECT_FALSE(name.IsEmpty() || value.IsEmpty()) << building.id;
                EXPECT_TRUE(names.insert(name).second) << CString2string(name);
                EXPECT_EQ(HasChinese(name), chinese) << CString2string(name);
                EXPECT_TRUE(chinese || !HasChinese(value)) << CString2string(value);
                // The column has room for six Chinese or some thirteen Latin characters.
                longNames += name.GetLength() > (chinese ? 6 : 14);
            }
            EXPECT_GE(longNames, 2) << "names that only the tooltip shows whole";
        }
    }
}

TEST(BuildingRows, carry_the_registers_figures_with_their_units)
{
    city::City tiny = SmallCity();
    city::Building& building = tiny.buildings[0];
    building.name = {"滨江大厦", "Riverside Tower"};
    building.use = city::Use::Office;
    building.floors = 5;
    building.footprintArea = 400.0;
    building.floorArea = 1900.4;
    building.plotRatio = 2.345;
    building.greenRatio = 0.31;
    building.year = 2011;
    building.northing = 3482123.456;
    const LanguageOf spoken(L"en");
    const Rows rows = host::BuildingRows(tiny, building);
    const struct
    {
        const wchar_t* name;
        const char* value;
    } expected[] = {{L"Name", "Riverside Tower"},
                    {L"Register no.", "B0001"},
                    {L"Use", "Office"},
                    {L"Floors", "5 floors"},
                    {L"Height", "20.0 m"},
                    {L"Storey height", "4.00 m"},
                    {L"Footprint", "400 m²"},
                    {L"Floor area", "1,900 m²"},
                    {L"Plot ratio", "2.35"},
                    {L"Green ratio", "31.0 %"},
                    {L"Completed", "2011"},
                    {L"Extent W–E", "20.0 m"},
                    {L"Survey X (northing)", "3,482,123.46 m"},
                    {L"Centre, distance to", "0 m"}};
    for (const auto& row : expected)
    {
        EXPECT_EQ(ValueOf(rows, row.name), row.value) << CString2string(row.name);
    }
}

TEST(CityRows, count_every_building_once)
{
    const LanguageOf spoken(L"en");
    const Rows rows = host::CityRows(WholeCity());
    EXPECT_EQ(ValueOf(rows, L"Register"), CString2string(host::Figure(double(WholeCity().buildings.size())) + L" buildings"));
    EXPECT_EQ(ValueOf(rows, L"Highest"), "Riverside Centre");
    const auto schools = std::count_if(WholeCity().buildings.begin(), WholeCity().buildings.end(),
                                       [](const city::Building& building) { return building.use == city::Use::Education; });
    EXPECT_EQ(ValueOf(rows, L"Education"), std::to_string(schools) + " buildings");
}

TEST(Addresses, name_the_nearest_street_and_number_its_sides_odd_and_even)
{
    city::Random random(1);
    const city::Plan plan = city::MakePlan(random);
    const city::Street& road = plan.northSouth[4];
    const double between = (plan.eastWest[2].place + plan.eastWest[3].place) / 2;
    const city::Label west = city::AddressAt(plan, {road.place - 20.0, between});
    const city::Label east = city::AddressAt(plan, {road.place + 20.0, between});
    const int westNumber = std::stoi(west.en);
    EXPECT_EQ(std::stoi(east.en), westNumber + 1) << east.en;
    EXPECT_EQ(westNumber % 2, 1) << west.en;
    EXPECT_EQ(east.en.substr(east.en.find(' ')), west.en.substr(west.en.find(' '))) << "one street";
    EXPECT_NE(east.en.find(" Road, "), std::string::npos);
    EXPECT_NE(east.zh.find("路 "), std::string::npos);
}

TEST(Addresses, have_four_districts_about_the_river)
{
    std::set<std::string> districts;
    for (const city::Building& building : WholeCity().buildings)
    {
        districts.insert(building.district.zh);
        EXPECT_EQ(building.address.zh.find(building.district.zh), 0u) << building.address.zh;
    }
    EXPECT_EQ(districts, (std::set<std::string>{"云溪区", "朝阳区", "滨江新区", "青石区"}));
}
