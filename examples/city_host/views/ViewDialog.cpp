// SPDX-License-Identifier: MIT
#include "ViewDialog.h"

#include "../host/Guarded.h"
#include "../host/Language.h"
#include "../resources/resource.h"

#include <utility>

namespace host
{
namespace
{

constexpr int LongestCaption = 40; ///< UTF-16 units; more would not fit under a thumbnail

} // namespace

ViewDialog::ViewDialog(CWnd* owner, const CString& caption, Confirmed confirmed)
    : caption_(caption), confirmed_(std::move(confirmed))
{
    if (Create(IDD_EDIT_VIEW, owner))
    {
        if (owner)
        {
            CentreOver(*owner);
        }
        ShowWindow(SW_SHOW);
    }
}

ViewDialog::~ViewDialog()
{
    DestroyWindow();
}

BOOL ViewDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetWindowText(Say({L"编辑控制按钮", L"Edit control button"}));
    SetDlgItemText(IDC_VIEW_CAPTION_LABEL, Say({L"名称：", L"Caption:"}));
    SetDlgItemText(IDC_VIEW_NEW_PICTURE, Say({L"用当前视图更新缩略图", L"New picture from the current view"}));
    SetDlgItemText(IDOK, Translation("LKEY67"));
    SetDlgItemText(IDCANCEL, Translation("LKEY10134"));
    const CWnd* const edit = GetDlgItem(IDC_VIEW_CAPTION);
    edit->SendMessage(EM_LIMITTEXT, LongestCaption);
    edit->SendMessage(EM_SETSEL, 0, -1);
    return TRUE;
}

void ViewDialog::CentreOver(const CWnd& owner)
{
    CRect over;
    CRect dialog;
    owner.GetWindowRect(over);
    GetWindowRect(dialog);
    SetWindowPos(nullptr, over.left + (over.Width() - dialog.Width()) / 2, over.top + (over.Height() - dialog.Height()) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ViewDialog::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_VIEW_CAPTION, caption_);
}

void ViewDialog::OnOK()
{
    UpdateData(TRUE);
    caption_.Trim();
    if (caption_.IsEmpty())
    {
        // A button without a caption could not be chosen.
        GetDlgItem(IDC_VIEW_CAPTION)->SetFocus();
        MessageBeep(MB_ICONWARNING);
        return;
    }
    const bool newPicture = GetDlgItem(IDC_VIEW_NEW_PICTURE)->SendMessage(BM_GETCHECK) == BST_CHECKED;
    CDialog::OnOK();
    Guarded("changing a control button", [&] { confirmed_(caption_, newPicture); });
}

} // namespace host
