// SPDX-License-Identifier: MIT
#pragma once

#include "PublishDialog.h"

namespace host
{

class CityHost;

/// The publish command: asks for the start page's texts, prints the page, and writes the folder.
class Publishing
{
public:
    /// @param host outlives this
    explicit Publishing(CityHost& host);

    /// Opens the dialog. @return a line for the user
    CString Ask();
    /// The dialog goes; nothing happens when it is not there.
    void CloseDialog();

    /// Where the last publication lies, with the program that starts it; empty when there is none.
    const CString& Folder() const { return folder_; }

private:
    StartPageTexts LastTexts() const;
    void Publish(const StartPageTexts& texts);

    CityHost& host_;
    PublishDialog dialog_;
    CString folder_;
};

} // namespace host
