// SPDX-License-Identifier: MIT
#include "TitleEditDialog.h"

#include "../resources/resource.h"
#include "../widgets/MessageLoops.h"
#include "../widgets/Module.h"
#include "FontNames.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <KernelCommonUse/KWMessageBox.h>
#include <KernelCommonUse/MultiLanguage.h>

#include <afxdlgs.h>

#include <utility>

namespace
{
constexpr int MaxTextLength = 100;      // UTF-16 units
constexpr double MaxHeight = 100.0;     // pixels
constexpr float MinHeight = 0.0001f;    // pixels; less is not shown in plain digits
constexpr float FallbackHeight = 16.0f; // pixels; shown for a title with less
constexpr int VisibleFonts = 10;        // entries of the dropped list

/// The one dialog; it clears this when it goes.
CDlgGuiTitleEdit* theDialog = nullptr;

CString Translated(const char* key)
{
    return CMultiLanguageMgr::GetInstance()->translation(key, "", "Common");
}

void ShowMessage(const char* key)
{
    MessageLoops::Run([text = Translated(key)] { KWMessageBox(text, KW_INFORMATION, AfxGetMainWnd()); });
}

/// Dialog templates come from the library's own module while the object lives.
class OwnResources
{
public:
    OwnResources() : former_(AfxGetResourceHandle()) { AfxSetResourceHandle(ModuleInstance()); }
    ~OwnResources() { AfxSetResourceHandle(former_); }
    OwnResources(const OwnResources&) = delete;
    OwnResources& operator=(const OwnResources&) = delete;

private:
    HINSTANCE former_;
};

/// Null when there is no memory for it.
CDlgGuiTitleEdit* NewDialog()
{
    try
    {
        return new CDlgGuiTitleEdit;
    }
    catch (...)
    {
        // MFC throws an exception of its own here, and the constructor does no more than allocate.
        return nullptr;
    }
}

bool CreateWindowOf(CDlgGuiTitleEdit& dialog)
{
    const OwnResources resources;
    return dialog.Create(IDD_TITLE_EDIT, AfxGetMainWnd()) != FALSE;
}
} // namespace

void OpenTitleEditDialog()
{
    if (theDialog)
    {
        if (!theDialog->IsWindowVisible())
        {
            theDialog->ShowWindow(SW_SHOW);
        }
        return;
    }
    theDialog = NewDialog();
    if (!theDialog)
    {
        ShowMessage("LKEY10239");
        return;
    }
    if (CreateWindowOf(*theDialog))
    {
        theDialog->ShowWindow(SW_SHOW);
        return;
    }
    // A dialog whose window was there for a moment has deleted itself with it.
    delete std::exchange(theDialog, nullptr);
    // The key ends in a full stop on purpose.
    ShowMessage("LKEY10266.");
}

void CloseTitleEditDialog()
{
    if (theDialog)
    {
        theDialog->DestroyWindow();
    }
}

void FillFontList(CComboBox& list, const std::vector<CString>& names)
{
    for (const CString& name : names)
    {
        if (list.FindString(0, name) < 0)
        {
            list.AddString(name);
        }
    }
}

BEGIN_MESSAGE_MAP(CDlgGuiTitleEdit, CDialog)
    ON_WM_CLOSE()
    ON_BN_CLICKED(IDC_TITLE_COLOR, &CDlgGuiTitleEdit::OnPickColor)
    ON_EN_CHANGE(IDC_TITLE_TEXT, &CDlgGuiTitleEdit::OnTextChanged)
    ON_CBN_SELCHANGE(IDC_TITLE_FONT, &CDlgGuiTitleEdit::OnFontChosen)
END_MESSAGE_MAP()

CDlgGuiTitleEdit::CDlgGuiTitleEdit() : fontName_(Translated("LKEY11")) {}

void CDlgGuiTitleEdit::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TITLE_COLOR, colorButton_);
    DDX_Text(exchange, IDC_TITLE_TEXT, text_);
    DDX_Control(exchange, IDC_TITLE_FONT, fontList_);
    DDX_Control(exchange, IDC_TITLE_HEIGHT, heightEdit_);
    DDX_Text(exchange, IDC_TITLE_HEIGHT, height_);
}

BOOL CDlgGuiTitleEdit::OnInitDialog()
{
    CDialog::OnInitDialog();
    Centre();
    heightEdit_.SetUpperLimit(MaxHeight);
    heightEdit_.UseUpperLimit(true);
    ReadTitle();
    ShowFonts();
    UpdateData(FALSE);
    ShowLabels();
    return TRUE;
}

void CDlgGuiTitleEdit::Centre()
{
    CRect desktop;
    CRect dialog;
    GetDesktopWindow()->GetWindowRect(desktop);
    GetWindowRect(dialog);
    SetWindowPos(nullptr, (desktop.Width() - dialog.Width()) / 2, (desktop.Height() - dialog.Height()) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER);
}

void CDlgGuiTitleEdit::ReadTitle()
{
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    text_ = frame.GetSceneTitle();
    colorButton_.SetColor(frame.GetSceneTitleColor());
    fontName_ = frame.GetSceneTitleFontStyle();
    height_ = frame.GetSceneTitleFontHeight();
    // A host can give any height; what the user sees here is one that can be confirmed.
    if (!(height_ >= MinHeight))
    {
        height_ = FallbackHeight;
    }
    else if (height_ > MaxHeight)
    {
        height_ = static_cast<float>(MaxHeight);
    }
}

void CDlgGuiTitleEdit::ShowFonts()
{
    FillFontList(fontList_, InstalledFontNames());
    const int index = fontList_.FindStringExact(-1, fontName_);
    fontList_.SetCurSel(index < 0 ? 0 : index);
    // The template leaves the dropped list hardly one entry of room.
    CRect closed;
    fontList_.GetWindowRect(closed);
    const int entry = static_cast<int>(fontList_.SendMessage(CB_GETITEMHEIGHT));
    fontList_.SetWindowPos(nullptr, 0, 0, closed.Width(), closed.Height() + VisibleFonts * entry, SWP_NOMOVE | SWP_NOZORDER);
}

void CDlgGuiTitleEdit::ShowLabels()
{
    const std::pair<int, const char*> labels[] = {
        {IDC_LABEL_TEXT, "LKEY10362"},
        {IDC_LABEL_FONT, "LKEY10159"},
        {IDC_LABEL_HEIGHT, "LKEY10160"},
        {IDC_LABEL_COLOR, "LKEY10161"},
        {IDOK, "LKEY67"},
        {IDCANCEL, "LKEY10134"},
    };
    SetWindowText(Translated("LKEY10361"));
    for (const auto& [id, key] : labels)
    {
        SetDlgItemText(id, Translated(key));
    }
}

void CDlgGuiTitleEdit::OnOK()
{
    if (!heightEdit_.Settle())
    {
        // The last good value stands there again, for the user to see before it is taken.
        heightEdit_.SetFocus();
        heightEdit_.SetSel(0, -1);
        return;
    }
    if (!UpdateData(TRUE) || !UpdateData(FALSE))
    {
        return;
    }
    if (text_.GetLength() > MaxTextLength)
    {
        ShowMessage("LKEY12");
        return;
    }
    CeGuiMainFrame::GetInstance()->ChangeTitleText(text_, colorButton_.GetColor(), fontName_, height_);
    CDialog::OnOK();
}

void CDlgGuiTitleEdit::OnCancel()
{
    Invalidate();
    CDialog::OnCancel();
    DestroyWindow();
}

void CDlgGuiTitleEdit::OnClose()
{
    Invalidate();
    CDialog::OnClose();
    DestroyWindow();
}

void CDlgGuiTitleEdit::PostNcDestroy()
{
    theDialog = nullptr;
    delete this;
}

void CDlgGuiTitleEdit::OnPickColor()
{
    CColorDialog dialog;
    const bool chosen = dialog.DoModal() == IDOK;
    // The interface may have been closed meanwhile, and this dialog with it.
    if (chosen && theDialog == this)
    {
        colorButton_.SetColor(dialog.GetColor());
    }
}

void CDlgGuiTitleEdit::OnTextChanged() {}

void CDlgGuiTitleEdit::OnFontChosen()
{
    const int index = fontList_.GetCurSel();
    if (index >= 0)
    {
        fontList_.GetLBText(index, fontName_);
    }
}
