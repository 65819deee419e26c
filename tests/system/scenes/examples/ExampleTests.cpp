// SPDX-License-Identifier: MIT
// OpenSceneGraph's own examples as hosts. NX_SCENES=all runs each in every setting; else those marked "short" run in some.
#include "ExampleHost.h"
#include "ExampleJudge.h"
#include "SampleData.h"

#include "support/GTest.h"

#include <osgDB/Registry>

#include <fstream>
#include <sstream>

namespace
{
const ExampleSetting Settings[] = {
    {"plain", false, false, false, false, false},
    {"buffer_objects", false, false, true, false, false},
    {"vertex_array_objects", false, false, false, true, false},
    {"uniforms", true, false, false, false, false},
    {"uniforms_and_aliasing", true, true, false, false, false},
    {"in_its_root", false, false, false, false, true},
};

struct ExampleRun
{
    std::string name;
    std::vector<std::string> arguments;
    ExampleSetting setting;
};

bool IsLong()
{
    const char* mode = std::getenv("NX_SCENES");
    return mode && std::string(mode) == "all";
}

std::vector<ExampleRun> Runs()
{
    std::vector<ExampleRun> runs;
    std::ifstream table(NX_EXAMPLE_TABLE);
    std::size_t turn = 0;
    for (std::string line; std::getline(table, line);)
    {
        std::istringstream words(line);
        std::string name;
        std::string length;
        words >> name >> length;
        if (name.empty() || name[0] == '#' || (!IsLong() && length != "short"))
        {
            continue;
        }
        std::vector<std::string> arguments;
        for (std::string word; words >> word;)
        {
            arguments.push_back(word);
        }
        for (std::size_t i = 0; i < std::size(Settings); ++i)
        {
            // Each of them in two settings, and each setting over several examples.
            if (IsLong() || (i + turn) % 3 == 0)
            {
                runs.push_back({name, arguments, Settings[i]});
            }
        }
        ++turn;
    }
    return runs;
}

class JudgeLifeTime : public testing::Environment
{
public:
    void SetUp() override
    {
        osgDB::Registry::instance()->getDataFilePathList().push_back(MakeSampleData());
        ExampleJudge::Instance().Begin();
    }
    void TearDown() override { ExampleJudge::Instance().End(); }
};

const testing::Environment* const judgeLifeTime = testing::AddGlobalTestEnvironment(new JudgeLifeTime);

class SceneExample : public testing::TestWithParam<ExampleRun>
{
};
} // namespace

TEST_P(SceneExample, shows_the_interface_as_over_a_plain_scene)
{
    const ExampleRun& run = GetParam();
    const RegisteredExample::Main* example = RegisteredExample::Find(run.name);
    ASSERT_NE(example, nullptr);
    std::vector<std::string> words = {run.name};
    words.insert(words.end(), run.arguments.begin(), run.arguments.end());
    std::vector<char*> arguments;
    for (std::string& word : words)
    {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    ExampleJudge& judge = ExampleJudge::Instance();
    judge.Use(run.setting, IsLong() ? 100 : 20);
    (*example)(static_cast<int>(words.size()), arguments.data());
    EXPECT_TRUE(judge.TakeJudged()) << "it drew no frame";
    EXPECT_EQ(judge.TakeFaults(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Osg, SceneExample, testing::ValuesIn(Runs()),
                         [](const testing::TestParamInfo<ExampleRun>& info)
                         { return info.param.name + "_" + info.param.setting.name; });
