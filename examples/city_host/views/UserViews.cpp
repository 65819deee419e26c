// SPDX-License-Identifier: MIT
#include "UserViews.h"

#include "../host/Language.h"

namespace host
{

BTN_UNIT UserViews::Add(const CameraPose& pose, const CString& pictures, int pointX)
{
    ++last_;
    CString zh;
    zh.Format(L"我的视点 %d", last_);
    CString en;
    en.Format(L"My view %d", last_);
    CString id;
    id.Format(L"user%d", last_);
    BTN_UNIT record;
    record.name = L"TavGuiButton_" + id;
    record.target = IsChinese() ? zh : en;
    record.text = IsChinese() ? en : zh;
    record.value = static_cast<float>(pointX);
    record.lastText = pictures + id + L".png";
    poses_[record.name] = pose;
    return record;
}

const CameraPose* UserViews::Find(const CString& name) const
{
    const auto found = poses_.find(name);
    return found == poses_.end() ? nullptr : &found->second;
}

void UserViews::Remove(const CString& name)
{
    poses_.erase(name);
}

} // namespace host
