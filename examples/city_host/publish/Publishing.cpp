// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "Publishing.h"

#include "../host/CityHost.h"
#include "../host/Language.h"

namespace host
{

Publishing::Publishing(CityHost& host) : host_(host), dialog_([this](const StartPageTexts& texts) { Publish(texts); }) {}

CString Publishing::Ask()
{
    return dialog_.Open(LastTexts(), *host_.MainWindow()) ? Say({L"请输入启动画面文字", L"asking for the start page's texts"})
                                                          : Say({L"无法打开对话框", L"the dialog cannot be opened"});
}

void Publishing::CloseDialog()
{
    dialog_.DestroyWindow();
}

StartPageTexts Publishing::LastTexts() const
{
    if (HasStartPageTexts())
    {
        const STAPAGE page;
        return {page.title, page.projectName, page.unitName};
    }
    return {Say({L"城市设计三维展示", L"City design in 3D"}), CeGuiMainFrame::GetInstance()->GetSceneTitle(),
            Say({L"滨江新城规划设计研究院", L"Riverside Planning Institute"})};
}

void Publishing::Publish(const StartPageTexts& texts)
{
    Publication publication = CurrentPublication(host_.Camera().Pose());
    publication.startPage = PrintStartPage(texts);
    CString problem =
        publication.startPage.IsEmpty() ? CString(Say({L"无法打印启动画面", L"the start page cannot be printed"})) : CString();
    const CString folder = PublicationFolder(texts.title);
    if (problem.IsEmpty())
    {
        problem = WritePublication(folder, publication);
    }
    if (problem.IsEmpty())
    {
        folder_ = folder;
    }
    const CString name = folder.Mid(folder.ReverseFind(L'\\') + 1);
    host_.Messages().Show(L"1", problem.IsEmpty() ? Say({L"已发布", L"Published"}) : Say({L"发布失败", L"Not published"}),
                          problem.IsEmpty() ? L"published\\" + name : problem);
}

} // namespace host
