// SPDX-License-Identifier: MIT
// The scene title in the title bar: as a text, and as a picture of the host's.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../panels/HoverEvents.h"
#include "../widgets/CallbackScope.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/Names.h"
#include "../widgets/TextPicture.h"
#include "../widgets/WholePixels.h"
#include "../widgets/WindowNames.h"
#include "ChromeEvents.h"
#include "FrameNames.h"

#include <KernelCommonUse/MultiLanguage.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <algorithm>
#include <utility>

namespace
{
constexpr int TextLeft = 50;                // bar pixels
constexpr SIZE EmptyTitleSize = {100, 30};  // pixels
constexpr float PictureTitleWidth = 600.0f; // pixels
const wchar_t* const PictureTitleFile = L"tavtitleimgefile.bmp";

void RemovePictureTitle()
{
    try
    {
        if (CEGUI::Window* former = WindowNames::Find(GuiName(FrameNames::PictureTitle)))
        {
            WindowNames::Destroy(*former);
            FileImagesets::Destroy(PictureTitleFile);
        }
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogDropped("former title picture not removed", CString2string(PictureTitleFile), NameBytes(dropped.getMessage()));
    }
}

UINT TitlePixels(float height)
{
    return static_cast<UINT>(std::max(0, WholePixels(height)));
}

void SubscribeTitle(CEGUI::Window& window)
{
    window.subscribeEvent(CEGUI::Window::EventMouseButtonUp, CEGUI::SubscriberSlot(&OnTitleButtonUp));
    window.subscribeEvent(CEGUI::Window::EventMouseDoubleClick, CEGUI::SubscriberSlot(&OnTitleDoubleClick));
}
/// A title without a font family is drawn in the default one: without its item no later change could bring it back.
const CString& DrawnFace(const CString& face, const CString& preferred)
{
    return face.IsEmpty() ? preferred : face;
}
} // namespace

CSize CeGuiMainFrame::SceneTitleSize() const
{
    const CSize size =
        MeasureTextExtent(DrawnFace(sceneTitleFontStyle_, preferredFontFace_), WholePixels(sceneTitleFontHeight_), sceneTitle_);
    // A larger picture could not be shown.
    const LONG longest = static_cast<LONG>(CEGUI::System::getSingleton().getRenderer()->getMaxTextureSize());
    // An empty title keeps a place, and so does one in a font that is not there: another font then brings it back.
    return size.cy > 0 ? CSize(std::min(size.cx, longest), std::min(size.cy, longest)) : CSize(EmptyTitleSize);
}

void CeGuiMainFrame::AddTitleText(CeGuiToolBar& bar)
{
    const CSize size = SceneTitleSize();
    const RECT rect = {TextLeft, (titleBarHeight_ - size.cy) / 2, TextLeft + size.cx, (titleBarHeight_ + size.cy) / 2};
    titleTextItem_ = bar.AddTextImage(rect, FrameNames::TitleText, sceneTitle_, TitlePixels(sceneTitleFontHeight_),
                                      DrawnFace(sceneTitleFontStyle_, preferredFontFace_), sceneTitleColor_);
    if (titleTextItem_ >= 0)
    {
        CEGUI::Window& text = *bar.items[static_cast<std::size_t>(titleTextItem_)].window;
        SubscribeTitle(text);
        // A long title in a narrow view runs below the window buttons, which have to stay within reach.
        text.moveToBack();
    }
}

void CeGuiMainFrame::ChangeTitleText(const CString& title, COLORREF color, CString fontStyle, float fontHeight)
{
    const CallbackScope scope;
    sceneTitle_ = title;
    sceneTitleColor_ = color;
    sceneTitleFontHeight_ = fontHeight;
    sceneTitleFontStyle_ = std::move(fontStyle);
    CeGuiToolBar* bar = FindBar(FrameNames::TitleBar);
    // A view that has lost its context gets the picture with its next frame.
    if (!bar || titleTextItem_ < 0 || !MakeContextCurrent())
    {
        return;
    }
    const CSize size = SceneTitleSize();
    const CString file =
        CreateTextImageFile(static_cast<UINT>(size.cx), static_cast<UINT>(size.cy), FrameNames::TitleText, sceneTitle_,
                            TitlePixels(sceneTitleFontHeight_), sceneTitleFontStyle_, sceneTitleColor_);
    if (!file.IsEmpty())
    {
        const LONG top = (bar->rect.bottom - bar->rect.top - size.cy) / 2;
        bar->ChangeItemImage(titleTextItem_, file, {TextLeft, top, TextLeft + size.cx, top + size.cy});
    }
}

void CeGuiMainFrame::ClearTitleSet()
{
    sceneTitle_ = CMultiLanguageMgr::GetInstance()->translation("LKEY0", "", "Common");
    sceneTitleColor_ = DefaultTitleColor;
    sceneTitleFontStyle_ = preferredFontFace_;
    sceneTitleFontHeight_ = DefaultTitleHeight;
}

void CeGuiMainFrame::CreateTitle(const CString& title, COLORREF color)
{
    const CallbackScope scope;
    if (!CEGUI::WindowManager::getSingletonPtr() || !MakeContextCurrent())
    {
        return;
    }
    CEGUI::Window* bar = WindowNames::Find(GuiName(FrameNames::TitleBar));
    if (!bar)
    {
        return;
    }
    RemovePictureTitle();
    try
    {
        const CEGUI::Image& image = FileImagesets::Create(PictureTitleFile);
        CEGUI::Window& picture = *WindowNames::Create("TavLook/StaticImage", GuiName(FrameNames::PictureTitle));
        picture.setSize(CEGUI::USize(CEGUI::UDim(PictureTitleWidth / static_cast<float>(windowWidth_), 0), CEGUI::UDim(1, 0)));
        picture.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 0), CEGUI::UDim(0, 0)));
        FileImagesets::Apply(picture, "Image", image);
        SubscribeTitle(picture);
        picture.subscribeEvent(CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnGuiHover));
        WindowNames::AddChild(*bar, picture);
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogDropped("title picture not shown", CString2string(PictureTitleFile), NameBytes(dropped.getMessage()));
        return;
    }
    sceneTitle_ = title;
    sceneTitleColor_ = color;
}
