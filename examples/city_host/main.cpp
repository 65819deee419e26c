// SPDX-License-Identifier: MIT
// The application: an MFC program whose one window is the planner's view of the city.
#include "Options.h"
#include "host/CityHost.h"
#include "host/Language.h"
#include "tour/Tour.h"
#include "window/Density.h"

#include <KernelCommonUse/StringConvert.h>

#include <afxwin.h>

#include <cstdio>
#include <exception>
#include <memory>

namespace
{

class CityHostApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CString error;
        if (!host::ParseOptions(GetCommandLineW(), options_, error))
        {
            std::fprintf(stderr, "CityHost: %s\n", CString2string(error).c_str());
            return FALSE;
        }
        // Before anything asks for a text.
        if (!options_.language.IsEmpty())
        {
            host::UseLanguage(options_.language);
        }
        host_ = std::make_unique<host::CityHost>(options_);
        m_pMainWnd = host_->MainWindow();
        return TRUE;
    }

    int Run() override { return options_.tourFolder.IsEmpty() ? host_->Run() : host::Tour(*host_, options_).Run(); }

    int ExitInstance() override
    {
        m_pMainWnd = nullptr;
        host_.reset();
        return 0;
    }

private:
    host::Options options_;
    std::unique_ptr<host::CityHost> host_;
};

CityHostApp application;

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show)
{
    host::TakeTrueDensity();
    if (!AfxWinInit(instance, nullptr, GetCommandLineW(), show))
    {
        return 1;
    }
    int result = 1;
    try
    {
        if (application.InitInstance())
        {
            result = application.Run();
        }
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "CityHost: %s\n", failure.what());
        result = 1;
    }
    application.ExitInstance();
    return result;
}
