// SPDX-License-Identifier: MIT
#pragma once

#include <CEGUI/DefaultResourceProvider.h>

/// CEGUI's default provider, which takes files of a resource group by Win32 paths and by names in the narrow form that the
/// interface's names have.
class SkinResourceProvider : public CEGUI::DefaultResourceProvider
{
public:
    void loadRawDataContainer(const CEGUI::String& filename, CEGUI::RawDataContainer& output,
                              const CEGUI::String& resourceGroup) override;
};
