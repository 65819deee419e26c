// SPDX-License-Identifier: MIT
// Message maps: which member function handles which message or command.
#pragma once

#include "nxmfc_export.h"

#include <windows.h>

class CCmdTarget;
class CWnd;

#define afx_msg

struct AFX_MSGMAP_ENTRY
{
    // 0 ends a map.
    UINT nMessage;
    // Commands only: the notification code, and the first and last id of the controls.
    UINT nCode;
    UINT nID;
    UINT nLastID;
    LRESULT (*call)(CCmdTarget* target, WPARAM wParam, LPARAM lParam);
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

template <class Class, class Result, class... Arguments>
Class* AfxTargetOf(Result (Class::*)(Arguments...), CCmdTarget* target)
{
    return static_cast<Class*>(target);
}

// One for each shape of handler: they unpack the message's parameters.
template <auto Member>
LRESULT AfxCallPlain(CCmdTarget* target, WPARAM, LPARAM)
{
    (AfxTargetOf(Member, target)->*Member)();
    return 0;
}

template <auto Member>
LRESULT AfxCallMessage(CCmdTarget* target, WPARAM wParam, LPARAM lParam)
{
    return (AfxTargetOf(Member, target)->*Member)(wParam, lParam);
}

template <auto Member>
LRESULT AfxCallChar(CCmdTarget* target, WPARAM wParam, LPARAM lParam)
{
    (AfxTargetOf(Member, target)->*Member)(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
    return 0;
}

NX_MFC_EXPORT CWnd* AfxWindowOf(WPARAM handle);

template <auto Member>
LRESULT AfxCallWindow(CCmdTarget* target, WPARAM wParam, LPARAM)
{
    (AfxTargetOf(Member, target)->*Member)(AfxWindowOf(wParam));
    return 0;
}

template <auto Member>
LRESULT AfxCallDrawItem(CCmdTarget* target, WPARAM wParam, LPARAM lParam)
{
    (AfxTargetOf(Member, target)->*Member)(static_cast<int>(wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return 0;
}

#define DECLARE_MESSAGE_MAP()                                                                                                    \
protected:                                                                                                                       \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                                \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                                   \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                            \
    {                                                                                                                            \
        return GetThisMessageMap();                                                                                              \
    }                                                                                                                            \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                                              \
    {                                                                                                                            \
        using ThisClass [[maybe_unused]] = theClass;                                                                             \
        using TheBaseClass = baseClass;                                                                                          \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                                        \
    {                                                                                                                            \
        0, 0, 0, 0, nullptr                                                                                                      \
    }                                                                                                                            \
    }                                                                                                                            \
    ;                                                                                                                            \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                                                   \
    return &map;                                                                                                                 \
    }

#define ON_MESSAGE(message, member) {message, 0, 0, 0, &AfxCallMessage<member>},
#define ON_CONTROL(code, id, member) {WM_COMMAND, static_cast<UINT>(code), id, id, &AfxCallPlain<member>},
#define ON_COMMAND(id, member) ON_CONTROL(0, id, member)
#define ON_BN_CLICKED(id, member) ON_CONTROL(BN_CLICKED, id, member)
#define ON_EN_CHANGE(id, member) ON_CONTROL(EN_CHANGE, id, member)
#define ON_CBN_SELCHANGE(id, member) ON_CONTROL(CBN_SELCHANGE, id, member)

#define ON_WM_CHAR() {WM_CHAR, 0, 0, 0, &AfxCallChar<&ThisClass::OnChar>},
#define ON_WM_CLOSE() {WM_CLOSE, 0, 0, 0, &AfxCallPlain<&ThisClass::OnClose>},
#define ON_WM_DRAWITEM() {WM_DRAWITEM, 0, 0, 0, &AfxCallDrawItem<&ThisClass::OnDrawItem>},
#define ON_WM_KILLFOCUS() {WM_KILLFOCUS, 0, 0, 0, &AfxCallWindow<&ThisClass::OnKillFocus>},
#define ON_WM_NCDESTROY() {WM_NCDESTROY, 0, 0, 0, &AfxCallPlain<&ThisClass::OnNcDestroy>},
