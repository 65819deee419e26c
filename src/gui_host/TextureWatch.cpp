// SPDX-License-Identifier: MIT
#include "TextureWatch.h"

#include "../widgets/FailureLog.h"

#include <osg/Camera>
#include <osg/RenderInfo>

namespace
{
/// A host may draw a frame or two into a texture, for a picture of the whole.
constexpr int DrawsUntilLogged = 100;
} // namespace

void TextureWatch::Draw(osg::RenderInfo& info)
{
    const osg::RenderInfo::CameraStack& cameras = info.getCameraStack();
    // The last one is the interface's own.
    const osg::Camera* around = cameras.size() > 1 ? cameras[cameras.size() - 2] : nullptr;
    if (!around || !around->isRenderToTextureCamera())
    {
        draws_ = 0;
        return;
    }
    if (!logged_ && ++draws_ == DrawsUntilLogged)
    {
        logged_ = true;
        LogFailure("interface drawn into another camera's texture only (its node belongs outside of a shadowed scene)",
                   around->getName().empty() ? "a camera without a name" : "camera " + around->getName());
    }
}
