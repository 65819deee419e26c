// SPDX-License-Identifier: MIT
// The interface measured beside other ways to the same picture, all in one run.
//   NxBench [--plain] [--only NAME] OUT_FOLDER
#include "FrameRows.h"
#include "OtherRows.h"
#include "Report.h"
#include "Stage.h"
#include "native/Contestant.h"

#include <NxConfig/SystemUtility.h>

#include <fstream>
#include <iostream>
#include <stdexcept>

int main(int argc, char** argv)
{
    std::cout << std::unitbuf;
    static CWinApp application;
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    SystemUtility::SetAppPath(CString(folder) + L"\\app\\");
    bool withCity = true;
    std::string only;
    std::string out;
    for (int i = 1; i < argc; ++i)
    {
        const std::string argument = argv[i];
        if (argument == "--plain")
        {
            withCity = false;
        }
        else if (argument == "--only" && i + 1 < argc)
        {
            only = argv[++i];
        }
        else
        {
            out = argument;
        }
    }
    if (out.empty())
    {
        std::cerr << "NxBench wants a folder for bench.json\n";
        return 2;
    }
    try
    {
        Stage stage(withCity);
        stage.Host().Start(GUI_USER_FULL);
        std::cout << "OpenGL: " << bench::RendererName() << ", " << bench::RendererVersion() << "\n";
        std::ofstream(out + "/renderer.txt") << bench::RendererName() << ", OpenGL " << bench::RendererVersion() << "\n";
        std::vector<Row> rows;
        const auto wanted = [&](const char* group) { return only.empty() || only == group; };
        const auto add = [&](const std::vector<Row>& more)
        {
            rows.insert(rows.end(), more.begin(), more.end());
            std::cout << Table(more);
        };
        if (wanted("frame"))
        {
            add(FrameRows(stage, out));
        }
        if (wanted("submit_growth"))
        {
            add({SubmitGrowthRow(stage)});
        }
        if (wanted("mouse_move"))
        {
            add({MouseMoveRow(stage)});
        }
        if (wanted("resize"))
        {
            add(ResizeRows(stage));
        }
        if (wanted("thumbnail_first"))
        {
            add({ThumbnailRow(stage)});
        }
        if (wanted("panel_growth"))
        {
            add({PanelRow(stage)});
        }
        if (wanted("title"))
        {
            add({TitleRow(stage)});
        }
        if (wanted("startup"))
        {
            add(StartRows(stage));
        }
        std::ofstream(out + "/bench.json") << Json(rows);
        std::cout << "\n" << Table(rows);
        stage.Host().Close();
    }
    catch (const std::exception& failure)
    {
        std::cerr << "NxBench: " << failure.what() << "\n";
        return 1;
    }
    return 0;
}
