// SPDX-License-Identifier: MIT
#include "SceneLayers.h"

#include "Figures.h"

#include <osg/Geode>
#include <osg/Geometry>
#include <osg/NodeVisitor>
#include <osg/Texture>
#include <osg/TriangleFunctor>

#include <algorithm>
#include <set>

namespace host
{
namespace
{

struct LayerKind
{
    Words name;
    std::vector<const char*> nodes; ///< names of the nodes that belong to it
};

/// The last one takes what belongs nowhere else.
const std::vector<LayerKind>& LayerKinds()
{
    static const std::vector<LayerKind> kinds = {
        {{L"玻璃幕墙", L"Glass walls"}, {"FacadeGlassBlue", "FacadeGlassGrey", "FacadeFins"}},
        {{L"实体外墙", L"Solid walls"}, {"FacadeCream", "FacadeBrick", "FacadeWhite", "FacadeStone", "FacadeShop", "FacadeOld"}},
        {{L"屋顶", L"Roofs"}, {"Roof", "Tiles"}},
        {{L"构件", L"Details"}, {"Plain"}},
        {{L"树木", L"Trees"}, {"Foliage"}},
        {{L"道路", L"Roads"}, {"Road", "Zebra", "Pavement"}},
        {{L"地块", L"Lots"}, {"Lot", "Inlay"}},
        {{L"水体", L"Water"}, {"Water", "Pond"}},
        {{L"地形", L"Terrain"}, {"Base", "Land"}},
        {{L"天空", L"Sky"}, {}},
    };
    return kinds;
}

std::size_t LayerOf(const osg::NodePath& path)
{
    const std::vector<LayerKind>& kinds = LayerKinds();
    for (std::size_t kind = 0; kind < kinds.size(); ++kind)
    {
        const std::vector<const char*>& names = kinds[kind].nodes;
        for (const osg::Node* node : path)
        {
            if (std::find(names.begin(), names.end(), node->getName()) != names.end())
            {
                return kind;
            }
        }
    }
    return kinds.size() - 1;
}

struct CountTriangles
{
    std::size_t count = 0;
    void operator()(const osg::Vec3&, const osg::Vec3&, const osg::Vec3&, bool = false) { ++count; }
};

class Surveyor : public osg::NodeVisitor
{
public:
    Surveyor() : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN)
    {
        for (const LayerKind& kind : LayerKinds())
        {
            layers.push_back({kind.name});
        }
    }

    void apply(osg::Drawable& drawable) override
    {
        SceneLayer& layer = layers[LayerOf(getNodePath())];
        ++layer.parts;
        osg::TriangleFunctor<CountTriangles> triangles;
        drawable.accept(triangles);
        layer.triangles += triangles.count;
        if (const osg::Geometry* geometry = drawable.asGeometry())
        {
            layer.geometryBytes += GeometryBytes(*geometry);
        }
        // The state that counts for a drawable may hang on any node above it.
        for (const osg::Node* node : getNodePath())
        {
            if (const osg::StateSet* state = node->getStateSet())
            {
                layer.textureBytes += TextureBytes(*state);
            }
        }
    }

    std::vector<SceneLayer> layers;

private:
    std::size_t GeometryBytes(const osg::Geometry& geometry)
    {
        std::size_t bytes = 0;
        osg::Geometry::ArrayList arrays;
        const_cast<osg::Geometry&>(geometry).getArrayList(arrays);
        for (const osg::ref_ptr<osg::Array>& array : arrays)
        {
            bytes += seen_.insert(array.get()).second ? array->getTotalDataSize() : 0;
        }
        for (unsigned int i = 0; i < geometry.getNumPrimitiveSets(); ++i)
        {
            const osg::PrimitiveSet* set = geometry.getPrimitiveSet(i);
            const osg::DrawElements* indices = set->getDrawElements();
            bytes += indices && seen_.insert(set).second ? indices->getTotalDataSize() : 0;
        }
        return bytes;
    }

    std::size_t TextureBytes(const osg::StateSet& state)
    {
        std::size_t bytes = 0;
        for (unsigned int unit = 0; unit < state.getTextureAttributeList().size(); ++unit)
        {
            const auto* texture =
                dynamic_cast<const osg::Texture*>(state.getTextureAttribute(unit, osg::StateAttribute::TEXTURE));
            for (unsigned int i = 0; texture && i < texture->getNumImages(); ++i)
            {
                const osg::Image* picture = texture->getImage(i);
                bytes += picture && seen_.insert(picture).second ? picture->getTotalSizeInBytesIncludingMipmaps() : 0;
            }
        }
        return bytes;
    }

    std::set<const osg::Object*> seen_;
};

} // namespace

std::vector<SceneLayer> MeasureLayers(osg::Node& scene)
{
    Surveyor surveyor;
    scene.accept(surveyor);
    std::vector<SceneLayer>& layers = surveyor.layers;
    const auto isEmpty = [](const SceneLayer& layer) { return layer.parts == 0; };
    layers.erase(std::remove_if(layers.begin(), layers.end(), isEmpty), layers.end());
    return layers;
}

CeGuiMainFrame::PropertyRows LayerRows(const std::vector<SceneLayer>& layers)
{
    SceneLayer all = {{L"全部图层", L"All layers"}};
    for (const SceneLayer& layer : layers)
    {
        all.parts += layer.parts;
        all.triangles += layer.triangles;
        all.geometryBytes += layer.geometryBytes;
        all.textureBytes += layer.textureBytes;
    }
    CeGuiMainFrame::PropertyRows rows;
    const CString indent = L"    ";
    const auto add = [&](const SceneLayer& layer, const CString& count)
    {
        rows.emplace_back(Say(layer.name), count);
        rows.emplace_back(indent + Say({L"三角形", L"triangles"}), Figure(static_cast<double>(layer.triangles)));
        rows.emplace_back(indent + Say({L"几何内存", L"geometry"}), Memory(static_cast<double>(layer.geometryBytes)));
        rows.emplace_back(indent + Say({L"纹理内存", L"textures"}), Memory(static_cast<double>(layer.textureBytes)));
    };
    add(all, Figure(static_cast<double>(layers.size())) + Say({L" 个图层", L" layers"}));
    for (const SceneLayer& layer : layers)
    {
        add(layer, Figure(static_cast<double>(layer.parts)) + Say({L" 个批次", L" batches"}));
    }
    return rows;
}

} // namespace host
