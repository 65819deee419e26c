// SPDX-License-Identifier: MIT
#include "BuiltInTexts.h"

#include <algorithm>
#include <iterator>

namespace
{
struct Text
{
    const char* key;
    const char* chinese;
    const char* english;
};

const Text texts[] = {
    {"LKEY0", "滨江新城总体规划", "Riverside Masterplan"},
    {"LKEY1", "关闭", "Close"},
    {"LKEY2", "最小化", "Minimize"},
    {"LKEY3", "进入全场景", "Enter full scene"},
    {"LKEY4", "退出全场景", "Leave full scene"},
    {"LKEY5", "视点与视频列表", "View and video list"},
    {"LKEY6", "漫游", "Roam"},
    {"LKEY7", "效果环境", "Effect environment"},
    {"LKEY8", "显示属性", "Display properties"},
    {"LKEY9", "数据管理", "Data management"},
    {"LKEY10", "发布独立程序", "Publish standalone program"},
    {"LKEY11", "Noto Sans CJK SC", "Noto Sans CJK SC"},
    {"LKEY30", "在此处添加视点", "Add a view here"},
    {"LKEY31", "重置镜头", "Reset the camera"},
    {"LKEY32", "全场景", "Full scene"},
    {"LKEY33", "编辑标题...", "Edit the title..."},
    {"LKEY34", "场景", "Scene"},
    {"LKEY12", "标题最多可输入 100 个字符。", "The title may have at most 100 characters."},
    {"LKEY67", "确定", "Confirm"},
    {"LKEY10134", "退出", "Exit"},
    {"LKEY10159", "字体：", "Font:"},
    {"LKEY10160", "文字高度：", "Text height:"},
    {"LKEY10161", "颜色：", "Color:"},
    {"LKEY10239", "内存不足，无法打开对话框。", "There is not enough memory to open the dialog."},
    {"LKEY10266.", "无法创建对话框。", "The dialog could not be created."},
    {"LKEY10361", "编辑标题", "Edit Title"},
    {"LKEY10362", "文字：", "Text:"},
};
} // namespace

const char* BuiltInTexts::Find(const std::string& key, bool chinese)
{
    const auto found = std::find_if(std::begin(texts), std::end(texts), [&](const Text& text) { return key == text.key; });
    return found == std::end(texts) ? nullptr : chinese ? found->chinese : found->english;
}
