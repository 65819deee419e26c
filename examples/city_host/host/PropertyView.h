// SPDX-License-Identifier: MIT
#pragma once

#include "../city/City.h"

#include <afxwin.h>

#include <osg/Group>
#include <osg/ref_ptr>

namespace host
{

/// What the interface's property panel shows: the building that the user has picked, the city when there is none, or the
/// scene's layers. Marks the picked building in the scene.
class PropertyView
{
public:
    /// @param city outlives this
    /// @param scene gets the mark, as a child after the ones that it has
    PropertyView(const city::City& city, osg::Group& scene);

    /// Picks a building, or none with null. The panel then shows it; without one the layers stay there if they are shown.
    void Pick(const city::Building* building);
    /// Picks again what was picked before the last call of `Pick`.
    void TakeBack();
    const city::Building* Picked() const { return picked_; }

    void ShowObject();
    /// @param layersOf is measured anew
    void ShowLayers(osg::Node& layersOf);
    /// Once more, in the interface's present language.
    void Refresh();

private:
    void Mark();

    const city::City& city_;
    osg::ref_ptr<osg::Group> marks_;
    const city::Building* picked_ = nullptr;
    osg::ref_ptr<osg::Node> layersOf_; ///< null while an object is shown
    // As they were before the last pick.
    const city::Building* formerPicked_ = nullptr;
    osg::ref_ptr<osg::Node> formerLayersOf_;
};

} // namespace host
