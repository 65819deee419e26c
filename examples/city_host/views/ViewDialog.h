// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <functional>

namespace host
{

/// The user changes a control button: its caption, and whether its picture is taken anew from the current view. Modeless, so
/// that the scene can be moved to the view that is wanted; hidden once it is confirmed or left.
class ViewDialog : public CDialog
{
public:
    /// Called on confirmation.
    using Confirmed = std::function<void(const CString& caption, bool newPicture)>;

    /// Opens it, in the interface's language, centred over its owner.
    /// @param owner may be null
    ViewDialog(CWnd* owner, const CString& caption, Confirmed confirmed);
    ~ViewDialog() override;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;

private:
    void CentreOver(const CWnd& owner);

    CString caption_;
    Confirmed confirmed_;
};

} // namespace host
