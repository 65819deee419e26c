// SPDX-License-Identifier: MIT
#pragma once

#include "Publication.h"

#include <afxwin.h>

#include <functional>

namespace host
{

/// Asks for the texts of the start page before a publication. Modeless, so that the view goes on; hidden when it is confirmed
/// or cancelled, and used again.
class PublishDialog : public CDialog
{
public:
    /// @param confirmed called with texts of which none is empty
    explicit PublishDialog(std::function<void(const StartPageTexts&)> confirmed);

    /// Shows it over the main window with these texts. @return false when it cannot be made
    bool Open(const StartPageTexts& texts, CWnd& owner);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    void OnCancel() override;
    DECLARE_MESSAGE_MAP()

private:
    void ShowLabels();
    void Centre(const CWnd& over);

    std::function<void(const StartPageTexts&)> confirmed_;
    StartPageTexts texts_;
};

} // namespace host
