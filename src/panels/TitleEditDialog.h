// SPDX-License-Identifier: MIT
#pragma once

#include "ColorSelButton.h"

#include <CommonCtrl/KWNumEdit.h>
#include <NxOsgCeGui/TitleDialog.h>

#include <afxwin.h>

#include <vector>

/// Fills a combo box with names. One that begins another which is there already is left out.
void FillFontList(CComboBox& list, const std::vector<CString>& names);

/// The user edits the scene title's text, font, height and colour. Modeless; it owns itself and goes with its window.
class CDlgGuiTitleEdit : public CDialog
{
public:
    CDlgGuiTitleEdit();

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    /// Confirms: the title takes the values, and the dialog is hidden.
    void OnOK() override;
    void OnCancel() override;
    void PostNcDestroy() override;

    afx_msg void OnClose();
    afx_msg void OnPickColor();
    afx_msg void OnTextChanged();
    afx_msg void OnFontChosen();
    DECLARE_MESSAGE_MAP()

private:
    void Centre();
    void ReadTitle();
    void ShowFonts();
    void ShowLabels();

    CColorSelBtnT colorButton_;
    CString text_;
    CString fontName_;
    CComboBox fontList_;
    float height_ = 0.0f;
    CKWNumEdit heightEdit_;
};
