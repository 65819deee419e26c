// SPDX-License-Identifier: MIT
// Command targets and windows; included by afxwin.h.
#pragma once

#include "afx.h"
#include "afxmsg_.h"

class CDataExchange;

class NX_MFC_EXPORT CCmdTarget : public CObject
{
public:
    ~CCmdTarget() override;

    // Calls the handler of a command; false when no map has one.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, void* handlerInfo);

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    // The entry of the most derived map that has one; null when there is none.
    const AFX_MSGMAP_ENTRY* FindEntry(UINT message, UINT code, UINT id) const;
};

// What a window's procedure gives for a message whose handler has raised; called where the exception has been caught. One line
// for the debugger.
LRESULT AfxProcessWndProcException(HWND window, UINT message);

// A window. One that was attached is only held; the messages of one that was subclassed go through this object's message map
// first. Whoever destroys the object without Detach destroys the window.
class NX_MFC_EXPORT CWnd : public CCmdTarget
{
public:
    CWnd() = default;
    ~CWnd() override;

    // The object of a window, else a temporary one, not to be kept: it is gone some time after its window.
    static CWnd* FromHandle(HWND window);
    // Null when no object holds the window.
    static CWnd* FromHandlePermanent(HWND window);
    static CWnd* GetDesktopWindow();

    // False when there is no window to attach or one is held already.
    BOOL Attach(HWND window);
    // The window held so far, null when there was none. A subclassed one gets its own procedure back.
    HWND Detach();
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    HWND GetSafeHwnd() const;
    operator HWND() const;
    // The object may be gone afterwards: see PostNcDestroy.
    virtual BOOL DestroyWindow();

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL ShowWindow(int command);
    BOOL IsWindowVisible() const;
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowEnabled() const;
    void Invalidate(BOOL erase = TRUE);
    CWnd* SetFocus();
    void SetWindowText(LPCWSTR text);
    void GetWindowText(CString& text) const;
    void GetWindowRect(LPRECT rect) const;
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags);
    CWnd* GetParent() const;
    // Null when there is no such control.
    CWnd* GetDlgItem(int id) const;
    int GetDlgCtrlID() const;
    void SetDlgItemText(int id, LPCWSTR text);

    // Moves values between controls and members by DoDataExchange. False when a control holds no such value.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    BOOL IsDialogMessage(LPMSG message);
    // Sees each message of the loop that goes to this window or one inside it; true: it has been dealt with.
    virtual BOOL PreTranslateMessage(MSG* message);

    HWND m_hWnd = nullptr;

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // A message that a control's parent got about the control.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // What happens without a handler, from inside of one.
    LRESULT Default();
    virtual void DoDataExchange(CDataExchange* exchange);
    // The last call of all; the place for an object that owns itself to be deleted.
    virtual void PostNcDestroy();

    afx_msg void OnChar(UINT unit, UINT repeat, UINT flags);
    afx_msg void OnClose();
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnNcDestroy();

    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // Null while the window is not subclassed.
    WNDPROC formerProcedure_ = nullptr;
};
