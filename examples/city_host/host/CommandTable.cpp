// SPDX-License-Identifier: MIT
#include "CommandTable.h"

#include "Actions.h"

#include <NxOsgCeGui/GuiTypes.h>

namespace host
{
namespace
{

const Command commands[] = {
    {GUI_CMD_PUBLISH, {L"发布独立程序", L"Publish standalone program"}, &Actions::Publish},
    {GUI_CMD_ROAM, {L"漫游", L"Roam"}, &Actions::StartRoaming},
    {GUI_CMD_ANTIALIASING, {L"抗锯齿", L"Anti-aliasing"}, &Actions::ToggleMultisampling},
    {GUI_CMD_DISPLAY_PROPERTIES, {L"显示属性", L"Display properties"}, &Actions::ShowProperties},
    {GUI_CMD_MUSIC, {L"背景音乐", L"Background music"}, &Actions::ToggleMusic},
    {GUI_CMD_ENVIRONMENT, {L"效果环境", L"Effect environment"}, &Actions::NextDayTime},
    {GUI_CMD_CLOSE, {L"关闭", L"Close"}, &Actions::Close},
    {GUI_CMD_MINIMISE, {L"最小化", L"Minimise"}, &Actions::Minimise},
    {GUI_CMD_CONTROL_BUTTON, {L"控制按钮", L"Control button"}, &Actions::ShowView},
    {GUI_CMD_KEY_ESCAPE, {L"Esc 键", L"Escape key"}, &Actions::StopRoaming},
    {GUI_CMD_KEY_SPACE, {L"空格键", L"Space key"}, &Actions::ToggleRotation},
    {GUI_CMD_KEY_UP, {L"上方向键", L"Up key"}, &Actions::WalkForward},
    {GUI_CMD_KEY_DOWN, {L"下方向键", L"Down key"}, &Actions::WalkBack},
    {GUI_CMD_KEY_LEFT, {L"左方向键", L"Left key"}, &Actions::WalkLeft},
    {GUI_CMD_KEY_RIGHT, {L"右方向键", L"Right key"}, &Actions::WalkRight},
    {GUI_CMD_EDIT_TITLE, {L"编辑标题", L"Edit title"}, nullptr},
    {GUI_CMD_DATA_MANAGEMENT, {L"数据管理", L"Data management"}, &Actions::ShowLayers},
};

const HostKey hostKeys[] = {
    {'L', {L"界面语言", L"Language"}, &Actions::SwitchLanguage},
    {'K', {L"界面皮肤", L"Skin"}, &Actions::SwitchSkin},
    {'A', {L"抗锯齿", L"Anti-aliasing"}, &Actions::ToggleMultisampling},
    {'M', {L"背景音乐", L"Background music"}, &Actions::ToggleMusic},
    {'S', {L"滑出动画", L"Slide-out animation"}, &Actions::ToggleSlideOut},
    {'H', {L"起始视点", L"Home view"}, &Actions::FlyHome},
};

} // namespace

const Command* FindCommand(UINT code)
{
    for (const Command& command : commands)
    {
        if (command.code == code)
        {
            return &command;
        }
    }
    return nullptr;
}

const HostKey* FindHostKey(UINT virtualKey)
{
    for (const HostKey& key : hostKeys)
    {
        if (key.virtualKey == virtualKey)
        {
            return &key;
        }
    }
    return nullptr;
}

} // namespace host
