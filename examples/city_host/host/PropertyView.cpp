// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "PropertyView.h"

#include "../objects/Highlight.h"
#include "../objects/ObjectRows.h"
#include "../objects/SceneLayers.h"

namespace host
{

PropertyView::PropertyView(const city::City& city, osg::Group& scene) : city_(city), marks_(new osg::Group)
{
    marks_->setName("marks");
    scene.addChild(marks_);
}

void PropertyView::Pick(const city::Building* building)
{
    formerPicked_ = picked_;
    formerLayersOf_ = layersOf_;
    picked_ = building;
    if (building)
    {
        layersOf_ = nullptr;
    }
    Mark();
    Refresh();
}

void PropertyView::TakeBack()
{
    picked_ = formerPicked_;
    layersOf_ = formerLayersOf_;
    Mark();
    Refresh();
}

void PropertyView::ShowObject()
{
    layersOf_ = nullptr;
    Refresh();
}

void PropertyView::ShowLayers(osg::Node& layersOf)
{
    layersOf_ = &layersOf;
    Refresh();
}

void PropertyView::Refresh()
{
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    CeGuiMainFrame::PropertyRows rows = layersOf_ ? LayerRows(MeasureLayers(*layersOf_))
                                        : picked_ ? BuildingRows(city_, *picked_)
                                                  : CityRows(city_);
    frame.setPropertyData(rows);
    if (frame.IsOpenPropertyDlg())
    {
        frame.RefreshPropertyDlg();
    }
}

void PropertyView::Mark()
{
    marks_->removeChildren(0, marks_->getNumChildren());
    if (picked_)
    {
        marks_->addChild(MakeHighlight(city_, *picked_));
    }
}

} // namespace host
