// SPDX-License-Identifier: MIT
#include "Contestant.h"

#include <backends/imgui_impl_opengl2.h>
#include <imgui.h>

namespace bench
{
namespace
{
ImTextureID IdOf(unsigned int texture)
{
    return reinterpret_cast<ImTextureID>(static_cast<std::uintptr_t>(texture));
}

class DearImGui : public Contestant
{
public:
    explicit DearImGui(const DrawList& list) : quads_(list.quads)
    {
        for (const Picture& picture : list.pictures)
        {
            textures_.push_back(UploadTexture(picture));
        }
        ImGui::CreateContext();
        ImGuiIO& io = ImGui::GetIO();
        io.DisplaySize = ImVec2(static_cast<float>(list.width), static_cast<float>(list.height));
        io.IniFilename = nullptr;
        ImGui_ImplOpenGL2_Init();
    }

    ~DearImGui() override
    {
        ImGui_ImplOpenGL2_Shutdown();
        ImGui::DestroyContext();
        DeleteTextures(textures_);
    }

    void Draw() override
    {
        ImGui_ImplOpenGL2_NewFrame();
        ImGui::GetIO().DeltaTime = 1.0f / 60.0f;
        ImGui::NewFrame();
        ImDrawList& list = *ImGui::GetBackgroundDrawList();
        for (const Quad& quad : quads_)
        {
            list.AddImage(IdOf(textures_[static_cast<std::size_t>(quad.picture)]), ImVec2(quad.left, quad.top),
                          ImVec2(quad.right, quad.bottom), ImVec2(quad.u0, quad.v0), ImVec2(quad.u1, quad.v1));
        }
        ImGui::Render();
        ImGui_ImplOpenGL2_RenderDrawData(ImGui::GetDrawData());
    }

private:
    std::vector<Quad> quads_;
    std::vector<unsigned int> textures_;
};
} // namespace

std::unique_ptr<Contestant> MakeDearImGui(const DrawList& list)
{
    return std::make_unique<DearImGui>(list);
}
} // namespace bench
