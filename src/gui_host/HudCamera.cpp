// SPDX-License-Identifier: MIT
// The camera that carries the interface over the scene, and the shader that the interface is drawn with.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../../platform/NativePath.h"

#include <KernelCommonUse/FileOp.h>

#include <osg/Geode>
#include <osg/Program>
#include <osg/Uniform>
#include <osgDB/ReadFile>

#include <iostream>

namespace
{
osg::ref_ptr<osg::Shader> ReadShader(osg::Shader::Type type, const wchar_t* first, const wchar_t* fallback)
{
    const CString appPath = FileOp::GetAppPath();
    const CString wanted = appPath + first;
    const CString path = FileOp::FileExist(wanted) ? wanted : appPath + fallback;
    return osgDB::readRefShaderFile(type, NativePath(path));
}

/// Without a shader the interface draws with the fixed-function state.
void AddProgram(osg::StateSet& stateSet)
{
    const osg::ref_ptr<osg::Shader> vertex = ReadShader(osg::Shader::VERTEX, L"exeFiles/shader/cegui.vs", L"/shader/cegui.vs");
    const osg::ref_ptr<osg::Shader> fragment =
        ReadShader(osg::Shader::FRAGMENT, L"exeFiles/shader/cegui.fs", L"/shader/cegui.fs");
    if (!vertex || !fragment)
    {
        std::cout << " create shader fail!" << std::endl;
        return;
    }
    const osg::ref_ptr<osg::Program> program = new osg::Program;
    program->addShader(vertex);
    program->addShader(fragment);
    stateSet.addUniform(new osg::Uniform("diffuseMap", 0), osg::StateAttribute::ON);
    stateSet.setAttributeAndModes(program, osg::StateAttribute::ON);
}
} // namespace

osg::Camera* CeGuiMainFrame::CreateHudCamera()
{
    osg::Camera* camera = new osg::Camera;
    // Relative and without matrices of its own: CEGUI sets up its pixel projection when it draws.
    camera->setReferenceFrame(osg::Transform::RELATIVE_RF);
    camera->setClearMask(GL_DEPTH_BUFFER_BIT);
    camera->setRenderOrder(osg::Camera::POST_RENDER, renderOrder_);
    camera->setAllowEventFocus(false);
    camera->getOrCreateStateSet()->setMode(GL_LIGHTING, osg::StateAttribute::OFF | osg::StateAttribute::PROTECTED);
    camera->setName("gui_Camera");
    return camera;
}

void CeGuiMainFrame::SetRenderOrder(int orderNum)
{
    renderOrder_ = orderNum;
    if (hudCamera_)
    {
        hudCamera_->setRenderOrder(osg::Camera::POST_RENDER, renderOrder_);
    }
}

void CeGuiMainFrame::CreateGuiDrawable()
{
    hudCamera_ = CreateHudCamera();
    drawable_ = new CeGuiDrawable;
    drawable_->setCullingActive(false);
    osg::StateSet& stateSet = *drawable_->getOrCreateStateSet();
    stateSet.setMode(GL_LIGHTING, osg::StateAttribute::OFF | osg::StateAttribute::PROTECTED);
    AddProgram(stateSet);
    const osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    geode->addDrawable(drawable_);
    hudCamera_->addChild(geode);
}
