// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>
#include <NxOsgCeGui/TitleDialog.h>

#include "MenuActions.h"

#include "../views/ViewPictures.h"
#include "CityHost.h"
#include "Frame.h"

#include <algorithm>
#include <iterator>

namespace host
{
namespace
{

// The interface's own menu of a control button; the scene's menu names the second one, too.
constexpr UINT ButtonProperties = 40098;
constexpr UINT ButtonAdd = 40101;
constexpr UINT ButtonDelete = 40100;
// The rest of the scene's menu, "sysmid/RButtonMenu.xml".
constexpr UINT SceneResetCamera = 40201;
constexpr UINT SceneFullScene = 40202;
constexpr UINT SceneEditTitle = 40203;

constexpr int SuffixLength = 2; ///< of a window's name, behind the record's
constexpr int VideoKind = 1;

const MenuCommand menuCommands[] = {
    {ButtonProperties, {L"编辑控制按钮", L"Edit control button"}, &MenuActions::EditButton},
    {ButtonAdd, {L"添加视点", L"Add a view"}, &MenuActions::AddButton},
    {ButtonDelete, {L"删除控制按钮", L"Delete control button"}, &MenuActions::DeleteButton},
    {SceneResetCamera, {L"重置镜头", L"Reset the camera"}, &MenuActions::ResetCamera},
    {SceneFullScene, {L"全场景", L"Full scene"}, &MenuActions::ToggleFullScene},
    {SceneEditTitle, {L"编辑标题", L"Edit the title"}, &MenuActions::EditTitle},
};

const wchar_t* NotAllowed()
{
    return Say({L"此用户不能编辑", L"this user may not edit"});
}

const wchar_t* NoButton()
{
    return Say({L"没有这个按钮", L"there is no such button"});
}

CString Caption(const BTN_UNIT& record)
{
    return record.target.IsEmpty() ? record.text : record.target;
}

} // namespace

const MenuCommand* FindMenuCommand(UINT id)
{
    const auto found = std::find_if(std::begin(menuCommands), std::end(menuCommands),
                                    [id](const MenuCommand& command) { return command.id == id; });
    return found == std::end(menuCommands) ? nullptr : found;
}

bool MenuActions::IsAllowed() const
{
    return Frame().GetUser() == GUI_USER_FULL;
}

int MenuActions::EditedButton() const
{
    const CString window = Frame().GetEditWindowName();
    int index = -1;
    if (window.GetLength() > SuffixLength)
    {
        Frame().GetBtnProperty(window.Left(window.GetLength() - SuffixLength),
                               window.Right(SuffixLength) == L"_V" ? VideoKind : 0, index);
    }
    return index;
}

void MenuActions::TakePicture(const CString& file)
{
    TakeViewPicture(host_.Viewer(), *host_.City().root, host_.Camera().Pose().ViewMatrix(), file);
}

CString MenuActions::EditButton()
{
    const BTN_UNIT* const record = Frame().GetBtnProperty(EditedButton());
    if (!record)
    {
        return NoButton();
    }
    const CString name = record->name;
    dialog_ = std::make_unique<ViewDialog>(host_.MainWindow(), Caption(*record),
                                           [this, name](const CString& caption, bool newPicture)
                                           { ApplyEdit(name, caption, newPicture); });
    return Caption(*record);
}

void MenuActions::ApplyEdit(const CString& name, const CString& caption, bool newPicture)
{
    std::vector<BTN_UNIT>& records = Frame().GetCtrlBtnInfo();
    const auto found =
        std::find_if(records.begin(), records.end(), [&name](const BTN_UNIT& candidate) { return candidate.name == name; });
    if (found == records.end())
    {
        // Deleted while the dialog was open.
        return;
    }
    BTN_UNIT record = *found;
    if (caption != Caption(record))
    {
        // The user's own words stay what they are in the other language.
        record.target = caption;
        record.text = caption;
    }
    if (newPicture)
    {
        // A file of its own: several buttons may show the same picture.
        record.lastText = ViewPictureFolder() + name + L".png";
        TakePicture(record.lastText);
    }
    Frame().SetEditBtnProperty(name, record);
    host_.RebuildInterface();
}

CString MenuActions::AddButton()
{
    if (!IsAllowed())
    {
        return NotAllowed();
    }
    const BTN_UNIT record = host_.Views().Add(host_.Camera().Pose(), ViewPictureFolder(), Frame().GetAddBtnMousePoint().x);
    TakePicture(record.lastText);
    // Behind the button whose menu it was, else at the end.
    std::vector<BTN_UNIT>& records = Frame().GetCtrlBtnInfo();
    const int edited = EditedButton();
    const int index = edited < 0 ? static_cast<int>(records.size()) : edited + 1;
    records.insert(records.begin() + index, record);
    // It is where the camera stands.
    Frame().SetBtnIndex(index);
    host_.RebuildInterface();
    return record.target;
}

CString MenuActions::DeleteButton()
{
    const int index = EditedButton();
    const BTN_UNIT* const record = Frame().GetBtnProperty(index);
    if (!record)
    {
        return NoButton();
    }
    const CString caption = Caption(*record);
    const CString name = record->name;
    Frame().DeleteButton(name);
    host_.Views().Remove(name);
    if (index < Frame().GetBtnIndex() || Frame().GetBtnIndex() >= static_cast<int>(Frame().GetCtrlBtnInfo().size()))
    {
        Frame().SetBtnIndex(Frame().GetBtnIndex() - 1);
    }
    host_.RebuildInterface();
    return caption;
}

CString MenuActions::ResetCamera()
{
    host_.FlyHome();
    return CString();
}

CString MenuActions::ToggleFullScene()
{
    Frame().OnToolBarFullScene(!Frame().IsFullScene());
    return Frame().IsFullScene() ? Say({L"已进入", L"entered"}) : Say({L"已退出", L"left"});
}

CString MenuActions::EditTitle()
{
    if (!IsAllowed())
    {
        return NotAllowed();
    }
    OpenTitleEditDialog();
    return CString();
}

} // namespace host
