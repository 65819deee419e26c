// SPDX-License-Identifier: MIT
#include "DocumentStops.h"

#include "../publish/PictureFile.h"
#include "../publish/Publication.h"
#include "Places.h"
#include "PublishedProgram.h"

#include <memory>

namespace host
{
namespace
{

constexpr int PublishTool = 6;
// View pixels.
constexpr POINT TitleText = {90, 25};
constexpr int MinimiseFromRight = 72;
const wchar_t* const FormerTitle = L"滨江新城总体规划";
const wchar_t* const NewTitle = L"滨江新城 · Riverside 2035";
const wchar_t* const PageTitle = L"滨江新城城市设计 2035";

std::unique_ptr<PublishedProgram> published;

void OpenTitleDialog(User& user)
{
    user.WaitForNotes();
    user.MoveTo(Centre(user));
    user.DoubleClick(CPoint(TitleText));
    user.MoveTo(Centre(user));
    user.WaitForNotes();
}

void ChangeTitle(User& user)
{
    user.Type(NewTitle);
    user.KeyToFocus(VK_TAB);
    user.KeyToFocus(VK_UP);
    user.KeyToFocus(VK_TAB);
    user.Type(L"22");
}

void Confirm(User& user)
{
    user.KeyToFocus(VK_RETURN);
    user.MoveTo(Centre(user));
}

void BringTitleBack(User& user)
{
    OpenTitleDialog(user);
    user.SelectAllInFocus();
    user.Type(FormerTitle);
    user.KeyToFocus(VK_TAB);
    user.KeyToFocus(VK_DOWN);
    user.KeyToFocus(VK_TAB);
    user.Type(L"16");
    Confirm(user);
}

void AskForTexts(User& user)
{
    HoverTool(user, PublishTool);
    user.Click(Tool(user, PublishTool));
    user.MoveTo(Centre(user));
    user.WaitForNotes();
}

void Publish(User& user)
{
    user.SelectAllInFocus();
    user.Type(PageTitle);
    user.KeyToFocus(VK_RETURN);
}

osg::ref_ptr<osg::Image> StartPage(User&)
{
    return ReadPictureFile(PublicationFolder(PageTitle) + L"\\startpage.bmp");
}

void StartPublished(User& user)
{
    // The window stands where the publication's comes up.
    user.Click(CPoint(user.ViewSize().cx - MinimiseFromRight, WindowButtonY));
    user.Wait();
    published = std::make_unique<PublishedProgram>(user, PublicationFolder(PageTitle));
}

osg::ref_ptr<osg::Image> PublishedStartPage(User&)
{
    return published->WaitForStartPage();
}

osg::ref_ptr<osg::Image> PublishedScene(User&)
{
    return published->WaitForScene();
}

void EndPublished(User& user)
{
    published.reset();
    user.RestoreWindow();
    user.MoveTo(Centre(user));
    BringTitleBack(user);
}

} // namespace

std::vector<TourStop> DocumentStops()
{
    return {
        {"title-dialog", "A double click on the title opens its dialog over the scene.", OpenTitleDialog, nullptr, false, true},
        {"title-dialog-changed", "Another text, another font and a larger height have been put in.", ChangeTitle, nullptr, false,
         true},
        {"title-changed", "The Enter key confirmed it, and the title shows in the scene.", Confirm, nullptr},
        {"publish-dialog", "The publish tool asks for the three lines of the start page.", AskForTexts, nullptr, false, true},
        {"published", "It was confirmed: the start page is printed, and the folder is written.", Publish, nullptr},
        {"start-page", "The printed start page, as it lies in the folder.", nullptr, nullptr, false, false, StartPage},
        {"published-start", "The folder's own start script has started the program: it opens with the start page.",
         StartPublished, nullptr, false, false, PublishedStartPage},
        {"published-scene", "Then comes the scene with the interface of a user who looks on.", nullptr, EndPublished, false,
         false, PublishedScene},
    };
}

} // namespace host
