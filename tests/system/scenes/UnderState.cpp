// SPDX-License-Identifier: MIT
#include "UnderState.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>

#include <osg/Program>

namespace
{
std::vector<std::string>* errorsSeen = nullptr;

void OnDebugMessage(unsigned int, unsigned int type, unsigned int, unsigned int, int length, const char* message, const void*)
{
    constexpr unsigned int Error = 0x824C;
    if (errorsSeen && type == Error)
    {
        errorsSeen->push_back(std::string(message, static_cast<std::size_t>(length)));
    }
}

class Around : public osg::Drawable::DrawCallback
{
public:
    Around(const std::function<void()>& set, const std::function<void()>& unset) : set_(set), unset_(unset) {}

    void drawImplementation(osg::RenderInfo& info, const osg::Drawable* drawable) const override
    {
        native_glPushAttrib(0xFFFFF);
        native_glPushClientAttrib(0xFFFFFFFF);
        set_();
        const GlSnapshot before = TakeGlSnapshot();
        native_glEnable(0x92E0 /* GL_DEBUG_OUTPUT */);
        native_glEnable(0x8242 /* GL_DEBUG_OUTPUT_SYNCHRONOUS */);
        native_glDebugMessageCallback(reinterpret_cast<const void*>(&OnDebugMessage), nullptr);
        errorsSeen = &errors;
        drawable->drawImplementation(info);
        errorsSeen = nullptr;
        native_glDebugMessageCallback(nullptr, nullptr);
        native_glDisable(0x8242);
        native_glDisable(0x92E0);
        for (const std::string& line : Differences(before, TakeGlSnapshot()))
        {
            differences.push_back(line);
        }
        unset_();
        native_glPopClientAttrib();
        native_glPopAttrib();
    }

    mutable std::vector<std::string> differences;
    mutable std::vector<std::string> errors;

private:
    std::function<void()> set_;
    std::function<void()> unset_;
};
} // namespace

void UnderState::TearDown()
{
    Drawable().setDrawCallback(nullptr);
    MakeCurrent();
    HostedFrame::TearDown();
}

UnderState::Outcome UnderState::Draw(GuiHost& host, const std::function<void()>& set, const std::function<void()>& unset)
{
    const osg::ref_ptr<Around> around = new Around(set, unset);
    Drawable().setDrawCallback(around);
    const Screenshot shot = host.Shoot();
    Drawable().setDrawCallback(nullptr);
    return {shot, around->differences, around->errors};
}

void UnderState::MarkDirty()
{
    CEGUI::System::getSingleton().getDefaultGUIContext().markAsDirty();
}

UnderState::FixedFunctions::FixedFunctions() : program_(Drawable().getStateSet()->getAttribute(osg::StateAttribute::PROGRAM))
{
    Drawable().getStateSet()->removeAttribute(osg::StateAttribute::PROGRAM);
}

UnderState::FixedFunctions::~FixedFunctions()
{
    Drawable().getStateSet()->setAttributeAndModes(program_, osg::StateAttribute::ON);
}

int UnderState::Different(const Screenshot& one, const Screenshot& other, int tolerance)
{
    if (one.pixels.size() != other.pixels.size())
    {
        return -1;
    }
    int different = 0;
    for (std::size_t i = 0; i < one.pixels.size(); ++i)
    {
        different += Distance(one.pixels[i], other.pixels[i]) > tolerance;
    }
    return different;
}
