// SPDX-License-Identifier: MIT
#include "PublishDialog.h"

#include "../host/Guarded.h"
#include "../host/Language.h"
#include "../resources/resource.h"

#include <utility>

namespace host
{

PublishDialog::PublishDialog(std::function<void(const StartPageTexts&)> confirmed) : confirmed_(std::move(confirmed)) {}

BEGIN_MESSAGE_MAP(PublishDialog, CDialog)
END_MESSAGE_MAP()

bool PublishDialog::Open(const StartPageTexts& texts, CWnd& owner)
{
    if (!m_hWnd && !Create(IDD_PUBLISH, &owner))
    {
        return false;
    }
    if (!IsWindowVisible())
    {
        texts_ = texts;
        UpdateData(FALSE);
        ShowLabels();
        Centre(owner);
    }
    ShowWindow(SW_SHOW);
    CWnd* const first = GetDlgItem(IDC_PUBLISH_TITLE);
    first->SetFocus();
    first->SendMessage(EM_SETSEL, 0, -1);
    return true;
}

void PublishDialog::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_PUBLISH_TITLE, texts_.title);
    DDX_Text(exchange, IDC_PUBLISH_PROJECT, texts_.projectName);
    DDX_Text(exchange, IDC_PUBLISH_UNIT, texts_.unitName);
}

void PublishDialog::ShowLabels()
{
    SetWindowText(Say({L"发布独立程序", L"Publish standalone program"}));
    SetDlgItemText(IDC_PUBLISH_HINT, Say({L"这三行文字印在启动画面上。", L"These three lines are printed on the start page."}));
    SetDlgItemText(IDC_PUBLISH_TITLE_LABEL, Say({L"标题：", L"Title:"}));
    SetDlgItemText(IDC_PUBLISH_PROJECT_LABEL, Say({L"项目名称：", L"Project:"}));
    SetDlgItemText(IDC_PUBLISH_UNIT_LABEL, Say({L"单位名称：", L"Organisation:"}));
    SetDlgItemText(IDOK, Say({L"发布", L"Publish"}));
    SetDlgItemText(IDCANCEL, Say({L"取消", L"Cancel"}));
}

void PublishDialog::Centre(const CWnd& over)
{
    CRect outer;
    CRect inner;
    over.GetWindowRect(outer);
    GetWindowRect(inner);
    SetWindowPos(nullptr, outer.left + (outer.Width() - inner.Width()) / 2, outer.top + (outer.Height() - inner.Height()) / 2, 0,
                 0, SWP_NOSIZE | SWP_NOZORDER);
}

void PublishDialog::OnOK()
{
    UpdateData(TRUE);
    const std::pair<int, CString*> lines[] = {
        {IDC_PUBLISH_TITLE, &texts_.title}, {IDC_PUBLISH_PROJECT, &texts_.projectName}, {IDC_PUBLISH_UNIT, &texts_.unitName}};
    for (const auto& [id, text] : lines)
    {
        if (text->Trim().IsEmpty())
        {
            // An empty line would be printed as the interface's built-in text.
            GetDlgItem(id)->SetFocus();
            return;
        }
    }
    ShowWindow(SW_HIDE);
    Guarded("publishing", [this] { confirmed_(texts_); });
}

void PublishDialog::OnCancel()
{
    ShowWindow(SW_HIDE);
}

} // namespace host
