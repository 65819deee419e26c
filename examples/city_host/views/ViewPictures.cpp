// SPDX-License-Identifier: MIT
#include "ViewPictures.h"

#include "../camera/OrbitCamera.h"
#include "../city/Viewpoints.h"
#include "../tour/Png.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/StringConvert.h>

#include <osg/Camera>
#include <osg/Image>

namespace host
{
namespace
{

// Four times the entry's 120 x 90, so that the thumbnail is scaled down cleanly.
constexpr int PictureWidth = 480;
constexpr int PictureHeight = 360;
constexpr double NearPlane = 1.0;
constexpr double FarPlane = 20000.0;

osg::ref_ptr<osg::Image> MakePicture()
{
    const osg::ref_ptr<osg::Image> picture = new osg::Image;
    picture->allocateImage(PictureWidth, PictureHeight, 1, GL_RGB, GL_UNSIGNED_BYTE);
    return picture;
}

void MakeFolder()
{
    CreateDirectoryW(FileOp::GetAppPath() + L"data", nullptr);
    CreateDirectoryW(ViewPictureFolder(), nullptr);
}

CString PictureFile(const city::Viewpoint& viewpoint)
{
    return ViewPictureFolder() + Utf8ToCString(viewpoint.id) + L".png";
}

/// A camera that draws into a picture instead of the window.
osg::ref_ptr<osg::Camera> MakeCamera(osg::Node& city, osg::Image& picture)
{
    const osg::ref_ptr<osg::Camera> camera = new osg::Camera;
    camera->setReferenceFrame(osg::Transform::ABSOLUTE_RF);
    camera->setRenderOrder(osg::Camera::PRE_RENDER);
    camera->setRenderTargetImplementation(osg::Camera::FRAME_BUFFER_OBJECT);
    camera->setViewport(0, 0, PictureWidth, PictureHeight);
    camera->setClearMask(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    camera->setProjectionMatrixAsPerspective(OrbitCamera::FieldOfView, double(PictureWidth) / PictureHeight, NearPlane, FarPlane);
    camera->attach(osg::Camera::COLOR_BUFFER, &picture);
    camera->addChild(&city);
    return camera;
}

} // namespace

CString ViewPictureFolder()
{
    return FileOp::GetAppPath() + L"data\\views\\";
}

void MakeViewPictures(osgViewer::Viewer& viewer, osg::Node& city)
{
    MakeFolder();
    const osg::ref_ptr<osg::Node> scene = viewer.getSceneData();
    for (const city::Viewpoint& viewpoint : city::Viewpoints())
    {
        if (FileOp::FileExist(PictureFile(viewpoint)))
        {
            continue;
        }
        const osg::ref_ptr<osg::Image> picture = MakePicture();
        const osg::ref_ptr<osg::Camera> camera = MakeCamera(city, *picture);
        camera->setViewMatrix(city::ViewMatrix(viewpoint));
        viewer.setSceneData(camera);
        viewer.frame();
        WritePng(PictureFile(viewpoint), *picture);
    }
    viewer.setSceneData(scene);
}

bool TakeViewPicture(osgViewer::Viewer& viewer, osg::Node& city, const osg::Matrixd& viewMatrix, const CString& file)
{
    MakeFolder();
    osg::Group& scene = *viewer.getSceneData()->asGroup();
    const osg::ref_ptr<osg::Image> picture = MakePicture();
    const osg::ref_ptr<osg::Camera> camera = MakeCamera(city, *picture);
    camera->setViewMatrix(viewMatrix);
    scene.addChild(camera);
    viewer.frame();
    scene.removeChild(camera);
    return WritePng(file, *picture);
}

} // namespace host
