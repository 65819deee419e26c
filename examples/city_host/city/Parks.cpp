// SPDX-License-Identifier: MIT
#include "Parks.h"

#include "Shapes.h"
#include "TreeTexture.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr double kStreetTreesWithin = 540.0; ///< from the centre, metres
constexpr double kStreetTreeStep = 17.0;
constexpr double kCrownsWithin = 620.0; ///< further out a tree is not seen from straight above
constexpr double kCrownLevel = 0.6;     ///< of the height: where the crown is widest

const Colour kPath(.88f, .83f, .74f);
const Colour kPond(.62f, .72f, .74f);
const Colour kLawn(.66f, .71f, .52f);
const Colour kTrack(.78f, .52f, .42f);
const Colour kPlayingField(.52f, .64f, .40f);
const Colour kLine(.95f, .95f, .92f);
const Colour kFoliage[] = {{.50f, .60f, .36f}, {.56f, .63f, .38f}, {.46f, .56f, .37f}, {.62f, .65f, .40f}, {.70f, .64f, .40f}};

Tree MakeTree(Site& site, const osg::Vec2d& place)
{
    const double height = site.random.Range(5.0, 10.0);
    return {place, height, height * site.random.Range(0.30, 0.40)};
}

osg::Vec2d Within(Site& site, const osg::Vec2d& low, const osg::Vec2d& high)
{
    const double x = site.random.Range(low.x(), high.x());
    return {x, site.random.Range(low.y(), high.y())};
}

void Limits(const Polygon& shape, osg::Vec2d& low, osg::Vec2d& high)
{
    low = high = shape.front();
    for (const osg::Vec2d& p : shape)
    {
        low.set(std::min(low.x(), p.x()), std::min(low.y(), p.y()));
        high.set(std::max(high.x(), p.x()), std::max(high.y(), p.y()));
    }
}

} // namespace

void PlantGrove(Site& site, const Polygon& ground, int count)
{
    PlantYard(site, ground, {}, count);
}

void PlantYard(Site& site, const Polygon& ground, const std::vector<Polygon>& lots, int count)
{
    const Polygon inner = Inset(ground, 3.0);
    if (inner.empty())
        return;
    osg::Vec2d low, high;
    Limits(inner, low, high);
    for (int attempt = 0; attempt < count * 4 && count > 0; ++attempt)
    {
        const osg::Vec2d place = Within(site, low, high);
        const bool built = std::any_of(lots.begin(), lots.end(), [&](const Polygon& lot) { return Contains(lot, place, 3.5); });
        if (built || !Contains(inner, place))
            continue;
        site.trees.push_back(MakeTree(site, place));
        --count;
    }
}

void PlantLawns(Site& site, const Polygon& ground, const std::vector<Polygon>& lots)
{
    const osg::Vec2d centre = Centre(ground);
    std::vector<Polygon> taken = lots;
    const auto lay = [&](const osg::Vec2d& place, const osg::Vec2d& size, double angle)
    {
        const Polygon lawn = Rectangle(place, size, angle);
        const bool free = std::none_of(
            taken.begin(), taken.end(),
            [&](const Polygon& other)
            {
                return std::any_of(lawn.begin(), lawn.end(), [&](const osg::Vec2d& p) { return Contains(other, p, 2.0); }) ||
                       std::any_of(other.begin(), other.end(), [&](const osg::Vec2d& p) { return Contains(lawn, p, 2.0); });
            });
        if (!free || !ContainsAll(ground, lawn))
            return;
        AddFlat(site, lawn, kLotHeight + 0.15, Surface::Inlay, kLawn);
        PlantGrove(site, Scaled(lawn, place, 1.3), static_cast<int>(size.x() * size.y() / 90.0));
        taken.push_back(lawn);
    };
    for (std::size_t i = 0; i < ground.size(); ++i)
    {
        osg::Vec2d along = ground[(i + 1) % ground.size()] - ground[i];
        const double length = along.normalize();
        const osg::Vec2d in(-along.y(), along.x());
        const double angle = std::atan2(along.y(), along.x());
        for (const double share : {0.27, 0.73})
            lay(ground[i] + along * (length * share) + in * 6.0, {length * 0.3, 7.0}, angle);
    }
    lay(centre, {16.0, 16.0}, 0.0);
    lay(centre, {9.0, 40.0}, 0.0);
    lay(centre, {40.0, 9.0}, 0.0);
}

void PlantStreetTrees(Site& site, const Polygon& kerb)
{
    const Polygon row = Inset(kerb, 1.8);
    for (std::size_t i = 0; i < row.size(); ++i)
    {
        osg::Vec2d along = row[(i + 1) % row.size()] - row[i];
        const double length = along.normalize();
        const int count = static_cast<int>((length - 12.0) / kStreetTreeStep);
        for (int n = 0; n <= count && count > 1; ++n)
        {
            const osg::Vec2d place = row[i] + along * (6.0 + (length - 12.0) * n / count);
            if (place.length() > kStreetTreesWithin || site.random.Chance(0.2))
                continue;
            const double height = site.random.Range(5.5, 7.5);
            site.trees.push_back({place, height, height * 0.33});
        }
    }
}

void BuildPark(Site& site, const Polygon& ground)
{
    const osg::Vec2d centre = Centre(ground);
    osg::Vec2d low, high;
    Limits(ground, low, high);
    const osg::Vec2d size = high - low;
    std::vector<Polygon> kept;
    if (size.x() > 80.0 && size.y() > 80.0)
    {
        const double height = kLotHeight + 0.15;
        const osg::Vec2d pond = centre + osg::Vec2d(size.x() * 0.16, -size.y() * 0.06);
        const Polygon shore = Ellipse(pond, size.x() * 0.20, size.y() * 0.22, 28);
        AddFlat(site, Scaled(shore, pond, 1.12), height, Surface::Inlay, kPath);
        AddFlat(site, shore, height + 0.15, Surface::Pond, kPond);
        kept.push_back(Scaled(shore, pond, 1.14));
        // Paths lead from the shore to the edges.
        const auto path = [&](const osg::Vec2d& from, const osg::Vec2d& to)
        {
            const osg::Vec2d along = to - from;
            const Polygon strip = Rectangle((from + to) / 2.0, {along.length(), 4.0}, std::atan2(along.y(), along.x()));
            AddFlat(site, strip, height - 0.08, Surface::Inlay, kPath);
            kept.push_back(strip);
        };
        path({low.x(), low.y() + size.y() * 0.3}, pond - osg::Vec2d(size.x() * 0.21, 0.0));
        path({centre.x() - size.x() * 0.2, high.y()}, pond + osg::Vec2d(-size.x() * 0.10, size.y() * 0.21));
        path({pond.x() + size.x() * 0.05, low.y()}, pond - osg::Vec2d(0.0, size.y() * 0.23));
        path({high.x(), high.y() - size.y() * 0.2}, pond + osg::Vec2d(size.x() * 0.16, size.y() * 0.14));
        const osg::Vec2d pavilion = centre - osg::Vec2d(size.x() * 0.30, size.y() * -0.18);
        const Polygon deck = Ellipse(pavilion, 7.0, 7.0, 6);
        AddBox(site, deck, kLotHeight, 1.0, Colour(.84f, .80f, .74f));
        AddBox(site, Scaled(deck, pavilion, 0.7), 1.0, 4.6, Colour(.74f, .58f, .48f));
        AddPyramid(site, Scaled(deck, pavilion, 1.15), 4.6, 8.0, Colour(.48f, .46f, .45f));
        kept.push_back(Scaled(deck, pavilion, 1.3));
    }
    PlantYard(site, ground, kept, std::min(300, static_cast<int>(Area(ground) / 170.0)));
}

void BuildSportsField(Site& site, const Polygon& ground)
{
    osg::Vec2d low, high;
    Limits(ground, low, high);
    const osg::Vec2d centre((low.x() + high.x()) / 2, (low.y() + high.y()) / 2);
    const double halfX = std::min(46.0, (high.x() - low.x()) / 2 - 6.0);
    if (halfX < 20.0 || high.y() - low.y() < 90.0)
        return;
    AddFlat(site, Ellipse(centre, halfX, 24.0, 32), kLotHeight + 0.1, Surface::Inlay, kTrack);
    AddFlat(site, Ellipse(centre, halfX - 7.0, 17.0, 32), kLotHeight + 0.2, Surface::Inlay, kPlayingField);
    AddFlat(site, Rectangle(centre, {0.8, 33.0}, 0.0), kLotHeight + 0.3, Surface::Inlay, kLine);
}

void BuildTrees(Site& site)
{
    for (const Tree& tree : site.trees)
    {
        Mesh& mesh = site.meshes.At(Surface::Foliage, tree.place);
        const Colour colour = site.random.Pick(kFoliage) * static_cast<float>(site.random.Range(0.92, 1.10));
        const double turn = site.random.Range(0.0, 1.57);
        const double foot = kLotHeight - 0.1;
        // Two upright pictures that cross, and the crown from above at its widest.
        for (const double angle : {turn, turn + 1.5707963})
        {
            const osg::Vec2d side = osg::Vec2d(std::cos(angle), std::sin(angle)) * (tree.radius * 1.12);
            const osg::Vec2d a = tree.place - side, b = tree.place + side;
            const osg::Vec3d low(0.0, 0.0, 0.5), high(0.0, 0.0, 1.0);
            const unsigned first = mesh.Vertex({{a.x(), a.y(), foot}, {kTreeSideFrom, 0.0}, colour * 0.75f}, low);
            mesh.Vertex({{b.x(), b.y(), foot}, {kTreeSideTo, 0.0}, colour * 0.75f}, low);
            mesh.Vertex({{b.x(), b.y(), tree.height}, {kTreeSideTo, 1.0}, colour}, high);
            mesh.Vertex({{a.x(), a.y(), tree.height}, {kTreeSideFrom, 1.0}, colour}, high);
            mesh.Join(first, first + 1, first + 2);
            mesh.Join(first, first + 2, first + 3);
        }
        if (tree.place.length() > kCrownsWithin)
            continue;
        const Polygon crown = Rectangle(tree.place, osg::Vec2d(2.2, 2.2) * tree.radius, turn);
        const double level = tree.height * kCrownLevel;
        const auto corner = [&](int index, double u, double v) {
            return Corner{{crown[index].x(), crown[index].y(), level}, {u, v}, colour};
        };
        mesh.Quad(corner(0, kTreeTopFrom, 0.0), corner(1, kTreeTopTo, 0.0), corner(2, kTreeTopTo, 1.0),
                  corner(3, kTreeTopFrom, 1.0));
    }
}

} // namespace city
