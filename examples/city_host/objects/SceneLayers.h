// SPDX-License-Identifier: MIT
#pragma once

#include "../host/Language.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <osg/Node>

#include <vector>

namespace host
{

/// What one layer of the scene consists of, counted in the scene graph.
struct SceneLayer
{
    Words name;
    std::size_t parts = 0; ///< drawables
    std::size_t triangles = 0;
    std::size_t geometryBytes = 0; ///< vertex arrays and indices
    std::size_t textureBytes = 0;  ///< pictures, each counted in the first layer that shows it
};

/// Walks the scene below a node and sorts every drawable into a layer by the names of its nodes. A layer without anything in
/// it is left out.
std::vector<SceneLayer> MeasureLayers(osg::Node& scene);

/// The layers as rows of the property panel: each with its counts and memory, and all together before them.
CeGuiMainFrame::PropertyRows LayerRows(const std::vector<SceneLayer>& layers);

} // namespace host
