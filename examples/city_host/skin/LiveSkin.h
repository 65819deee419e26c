// SPDX-License-Identifier: MIT
#pragma once

#include "SkinFolder.h"

#include <chrono>
#include <vector>

namespace host
{

/// A skin that may be edited while the interface shows it. The interface gets a copy of the skin's folder, below the resource
/// directory; what changes in the folder is taken over once it can be shown. So a file that is broken, half written or gone
/// leaves what was there before.
class LiveSkin
{
public:
    /// Copies the skin, and names the copy to the interface (parameter CEGUI_SkinDir, for this process) from its next start on.
    /// A skin that cannot be copied is used where it is, and changes of it are not followed.
    /// @param folder full path with a backslash at the end
    explicit LiveSkin(const CString& folder);

    /// The skin that the parameters name.
    static CString ConfiguredFolder();

    const CString& Folder() const { return folder_; }
    /// What the folder is called.
    CString Name() const;
    /// The one after this among those beside it; itself when there is no other.
    CString NextFolder() const;

    /// What has come of the files that were changed. Names below the folder.
    struct Change
    {
        std::vector<CString> taken;  ///< in the copy now
        std::vector<CString> broken; ///< as they were before in the copy
        bool IsEmpty() const { return taken.empty() && broken.empty(); }
        /// Whether the interface has to be started anew to read what was taken: it reads texts at its start only.
        bool NeedsStart() const;
    };

    /// Looks for changes a few times a second, however often it is called. A file counts once it has stood still from one look
    /// to the next. A broken one is told once, until it changes again.
    Change Look(std::chrono::steady_clock::time_point now);

    /// Undoes what the last change has put into the copy: the interface did not start with it. These files count as broken.
    void TakeBack(Change& change);

    /// A line in the interface's log for each broken file. The interface is running: the log is its own.
    void LogBroken(const Change& change) const;

private:
    void Take(const CString& file, Change& change);

    CString folder_;
    CString copy_;                                   ///< empty: none
    SkinFiles seen_;                                 ///< at the last look
    SkinFiles settled_;                              ///< as they were when they were taken, or found to be broken
    std::chrono::steady_clock::time_point nextLook_; ///< the first one at once
};

} // namespace host
