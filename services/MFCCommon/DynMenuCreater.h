// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afx.h>

// Makes menus of an XML file, so that an application's menus can be changed without building it:
//
//     <menus>
//         <menu text="Scene">
//             <item id="40201" key="LKEY20"/>
//             <separator/>
//             <item id="40202" text="Reset the camera" checked="true"/>
//             <menu key="LKEY21">
//                 <item id="40203" text="Full scene" enabled="false"/>
//             </menu>
//         </menu>
//     </menus>
//
// The root is "menus" and holds "menu" elements. A menu holds "item", "separator" and nested "menu" elements. A menu and an
// item have a "text", or a "key" which is the text's translation key in the section "Common". An item has an "id", the command
// that its owner gets with WM_COMMAND: 1 to 61439 (0xEFFF; the system's own commands lie above), each once in the file.
// "checked" and "enabled" are "true" or "false". Menus are nested at most 16 deep, and a file has at most 5000 elements.
class NX_SERVICES_EXPORT CDynMenuCreater
{
public:
    CDynMenuCreater();
    // Destroys the menu.
    ~CDynMenuCreater();
    CDynMenuCreater(const CDynMenuCreater&) = delete;
    CDynMenuCreater& operator=(const CDynMenuCreater&) = delete;

    // False, with one line in the log that names the file and what is wrong with it, when the file is missing, larger than
    // 4 MiB, not well-formed, or holds anything but the above. A menu loaded before is gone then.
    bool Load(const CString& path);

    // The menu whose submenus are the file's "menu" elements; null when none is loaded. This object owns it.
    HMENU GetMenu() const;

private:
    void Destroy();

    HMENU menu_ = nullptr;
};
