// SPDX-License-Identifier: MIT
#include "GlSnapshot.h"

#include "SystemGlCalls.h"

#include <sstream>

namespace
{
constexpr int Units = 32;      // as many image units as a test binds something on
constexpr int FixedUnits = 8;  // those of the fixed functions
constexpr int Attributes = 16; // generic vertex attributes

struct Name
{
    unsigned int value;
    const char* text;
};

const Name Capabilities[] = {{0x0BC0, "ALPHA_TEST"},
                             {0x0BE2, "BLEND"},
                             {0x0BF2, "COLOR_LOGIC_OP"},
                             {0x0B57, "COLOR_MATERIAL"},
                             {0x8458, "COLOR_SUM"},
                             {0x0B44, "CULL_FACE"},
                             {0x0B71, "DEPTH_TEST"},
                             {0x864F, "DEPTH_CLAMP"},
                             {0x0BD0, "DITHER"},
                             {0x0B60, "FOG"},
                             {0x8DB9, "FRAMEBUFFER_SRGB"},
                             {0x0B50, "LIGHTING"},
                             {0x4000, "LIGHT0"},
                             {0x0B20, "LINE_SMOOTH"},
                             {0x809D, "MULTISAMPLE"},
                             {0x0BA1, "NORMALIZE"},
                             {0x8037, "POLYGON_OFFSET_FILL"},
                             {0x0B41, "POLYGON_SMOOTH"},
                             {0x0B42, "POLYGON_STIPPLE"},
                             {0x8F9D, "PRIMITIVE_RESTART"},
                             {0x8642, "PROGRAM_POINT_SIZE"},
                             {0x8C89, "RASTERIZER_DISCARD"},
                             {0x809E, "SAMPLE_A2C"},
                             {0x809F, "SAMPLE_A2ONE"},
                             {0x80A0, "SAMPLE_COVERAGE"},
                             {0x8E51, "SAMPLE_MASK"},
                             {0x0C11, "SCISSOR_TEST"},
                             {0x0B90, "STENCIL_TEST"},
                             {0x884F, "CUBE_MAP_SEAMLESS"},
                             {0x8643, "VERTEX_PROGRAM_TWO_SIDE"},
                             {0x3000, "CLIP0"},
                             {0x3001, "CLIP1"},
                             {0x3002, "CLIP2"},
                             {0x3003, "CLIP3"},
                             {0x3004, "CLIP4"},
                             {0x3005, "CLIP5"},
                             {0x0D80, "AUTO_NORMAL"},
                             // Client arrays of the active client unit.
                             {0x8074, "VERTEX_ARRAY"},
                             {0x8075, "NORMAL_ARRAY"},
                             {0x8076, "COLOR_ARRAY"},
                             {0x8077, "INDEX_ARRAY"},
                             {0x8079, "EDGE_FLAG_ARRAY"},
                             {0x8457, "FOG_COORD_ARRAY"},
                             {0x845E, "SECONDARY_COLOR_ARRAY"}};

const Name Values[] = {{0x84E0, "ACTIVE_TEXTURE"},
                       {0x84E1, "CLIENT_ACTIVE_TEXTURE"},
                       {0x8894, "ARRAY_BUFFER"},
                       {0x8895, "ELEMENT_ARRAY_BUFFER"},
                       {0x85B5, "VERTEX_ARRAY_BINDING"},
                       {0x8B8D, "CURRENT_PROGRAM"},
                       {0x825A, "PROGRAM_PIPELINE"},
                       {0x8CA6, "DRAW_FRAMEBUFFER"},
                       {0x8CAA, "READ_FRAMEBUFFER"},
                       {0x8CA7, "RENDERBUFFER"},
                       {0x88ED, "PIXEL_PACK_BUFFER"},
                       {0x88EF, "PIXEL_UNPACK_BUFFER"},
                       {0x8A28, "UNIFORM_BUFFER"},
                       {0x8C2A, "TEXTURE_BUFFER"},
                       {0x0BB0, "ATTRIB_STACK_DEPTH"},
                       {0x0BB1, "CLIENT_ATTRIB_STACK_DEPTH"},
                       {0x0BA3, "MODELVIEW_STACK_DEPTH"},
                       {0x0BA4, "PROJECTION_STACK_DEPTH"},
                       {0x0BA0, "MATRIX_MODE"},
                       {0x0BA6, "MODELVIEW_MATRIX"},
                       {0x0BA7, "PROJECTION_MATRIX"},
                       {0x0BA2, "VIEWPORT"},
                       {0x0C10, "SCISSOR_BOX"},
                       {0x0B70, "DEPTH_RANGE"},
                       {0x0B72, "DEPTH_WRITEMASK"},
                       {0x0B74, "DEPTH_FUNC"},
                       {0x0B73, "DEPTH_CLEAR"},
                       {0x0C22, "COLOR_CLEAR"},
                       {0x0C23, "COLOR_WRITEMASK"},
                       {0x80C9, "BLEND_SRC_RGB"},
                       {0x80C8, "BLEND_DST_RGB"},
                       {0x80CB, "BLEND_SRC_ALPHA"},
                       {0x80CA, "BLEND_DST_ALPHA"},
                       {0x8009, "BLEND_EQUATION_RGB"},
                       {0x883D, "BLEND_EQUATION_ALPHA"},
                       {0x8005, "BLEND_COLOR"},
                       {0x0BC1, "ALPHA_FUNC"},
                       {0x0BC2, "ALPHA_REF"},
                       {0x0BF0, "LOGIC_OP_MODE"},
                       {0x0B45, "CULL_FACE_MODE"},
                       {0x0B46, "FRONT_FACE"},
                       {0x0B40, "POLYGON_MODE"},
                       {0x8038, "POLYGON_OFFSET_FACTOR"},
                       {0x2A00, "POLYGON_OFFSET_UNITS"},
                       {0x0B54, "SHADE_MODEL"},
                       {0x0B21, "LINE_WIDTH"},
                       {0x0B11, "POINT_SIZE"},
                       {0x0B92, "STENCIL_FUNC"},
                       {0x0B97, "STENCIL_REF"},
                       {0x0B93, "STENCIL_VALUE_MASK"},
                       {0x0B94, "STENCIL_FAIL"},
                       {0x0B98, "STENCIL_WRITEMASK"},
                       {0x8CA4, "STENCIL_BACK_VALUE_MASK"},
                       {0x0C01, "DRAW_BUFFER"},
                       {0x0C02, "READ_BUFFER"},
                       {0x0B00, "CURRENT_COLOR"},
                       {0x0B02, "CURRENT_NORMAL"},
                       {0x0B65, "FOG_MODE"},
                       {0x0B66, "FOG_COLOR"},
                       {0x0B53, "LIGHT_MODEL_AMBIENT"},
                       {0x0B52, "LIGHT_MODEL_TWO_SIDE"},
                       {0x0CF0, "UNPACK_SWAP_BYTES"},
                       {0x0CF1, "UNPACK_LSB_FIRST"},
                       {0x0CF2, "UNPACK_ROW_LENGTH"},
                       {0x0CF3, "UNPACK_SKIP_ROWS"},
                       {0x0CF4, "UNPACK_SKIP_PIXELS"},
                       {0x0CF5, "UNPACK_ALIGNMENT"},
                       {0x806D, "UNPACK_SKIP_IMAGES"},
                       {0x806E, "UNPACK_IMAGE_HEIGHT"},
                       {0x0D02, "PACK_ROW_LENGTH"},
                       {0x0D05, "PACK_ALIGNMENT"},
                       {0x935C, "CLIP_ORIGIN"},
                       {0x935D, "CLIP_DEPTH_MODE"},
                       {0x80AA, "SAMPLE_COVERAGE_VALUE"},
                       {0x0D1B, "ALPHA_SCALE"},
                       {0x8E4F, "PROVOKING_VERTEX"}};

const Name TextureBindings[] = {{0x8068, "1D"},     {0x8069, "2D"},          {0x806A, "3D"},
                                {0x8514, "CUBE"},   {0x84F6, "RECTANGLE"},   {0x8C1D, "2D_ARRAY"},
                                {0x8C2C, "BUFFER"}, {0x9104, "MULTISAMPLE"}, {0x8919, "SAMPLER"}};
const Name UnitCapabilities[] = {{0x0DE0, "1D"},    {0x0DE1, "2D"},    {0x806F, "3D"},    {0x8513, "CUBE"}, {0x84F5, "RECTANGLE"},
                                 {0x0C60, "GEN_S"}, {0x0C61, "GEN_T"}, {0x0C62, "GEN_R"}, {0x0C63, "GEN_Q"}};

std::string Number(double value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}

/// All numbers of a value: those that OpenGL does not set stay as they were put in.
std::string Numbers(unsigned int name)
{
    double values[16];
    std::fill(std::begin(values), std::end(values), -12345.0);
    native_glGetDoublev(name, values);
    std::string text;
    for (const double value : values)
    {
        if (value != -12345.0)
        {
            text += (text.empty() ? "" : " ") + Number(value);
        }
    }
    return text;
}

void TakeUnits(GlSnapshot& snapshot)
{
    int active = 0;
    int client = 0;
    native_glGetIntegerv(0x84E0, &active);
    native_glGetIntegerv(0x84E1, &client);
    for (unsigned int unit = 0; unit < Units; ++unit)
    {
        const std::string place = "unit " + std::to_string(unit) + " ";
        native_glActiveTexture(0x84C0 + unit);
        for (const Name& name : TextureBindings)
        {
            snapshot[place + name.text] = Numbers(name.value);
        }
        if (unit >= FixedUnits)
        {
            continue;
        }
        for (const Name& name : UnitCapabilities)
        {
            snapshot[place + "enabled " + name.text] = std::to_string(native_glIsEnabled(name.value));
        }
        float mode = 0;
        native_glGetTexEnvfv(0x2300, 0x2200, &mode);
        snapshot[place + "mode"] = Number(mode);
        snapshot[place + "matrix"] = Numbers(0x0BA8);
        native_glClientActiveTexture(0x84C0 + unit);
        void* pointer = nullptr;
        native_glGetPointerv(0x8092, &pointer);
        std::ostringstream array;
        array << int(native_glIsEnabled(0x8078)) << " " << pointer << " " << Numbers(0x8088) << " " << Numbers(0x889A);
        snapshot[place + "array"] = array.str();
    }
    native_glActiveTexture(static_cast<unsigned int>(active));
    native_glClientActiveTexture(static_cast<unsigned int>(client));
}
} // namespace

GlSnapshot TakeGlSnapshot()
{
    GlSnapshot snapshot;
    for (const Name& name : Capabilities)
    {
        snapshot[name.text] = std::to_string(native_glIsEnabled(name.value));
    }
    for (const Name& name : Values)
    {
        snapshot[name.text] = Numbers(name.value);
    }
    TakeUnits(snapshot);
    for (const Name& name : {Name{0x808E, "vertex pointer"}, Name{0x808F, "normal pointer"}, Name{0x8090, "color pointer"}})
    {
        void* pointer = nullptr;
        native_glGetPointerv(name.value, &pointer);
        std::ostringstream text;
        text << pointer;
        snapshot[name.text] = text.str();
    }
    for (unsigned int index = 0; index < Attributes; ++index)
    {
        std::ostringstream text;
        for (const unsigned int name : {0x8622u, 0x8623u, 0x8624u, 0x8625u, 0x886Au, 0x889Fu})
        {
            int value = -1;
            native_glGetVertexAttribiv(index, name, &value);
            text << value << " ";
        }
        void* pointer = nullptr;
        native_glGetVertexAttribPointerv(index, 0x8645, &pointer);
        text << pointer;
        snapshot["attribute " + std::to_string(index)] = text.str();
    }
    for (unsigned int buffer = 0; buffer < 4; ++buffer)
    {
        int mask[4] = {};
        native_glGetIntegeri_v(0x0C23, buffer, mask);
        snapshot["draw buffer " + std::to_string(buffer)] = std::to_string(native_glIsEnabledi(0x0BE2, buffer)) + " " +
                                                            std::to_string(mask[0]) + std::to_string(mask[1]) +
                                                            std::to_string(mask[2]) + std::to_string(mask[3]);
    }
    while (native_glGetError() != 0)
    {
    }
    return snapshot;
}

std::vector<std::string> Differences(const GlSnapshot& before, const GlSnapshot& after)
{
    std::vector<std::string> lines;
    for (const auto& [name, value] : before)
    {
        const auto now = after.find(name);
        if (now == after.end() || now->second != value)
        {
            lines.push_back(name + ": " + value + " -> " + (now == after.end() ? "nothing" : now->second));
        }
    }
    return lines;
}

std::vector<std::string> ButDisabledArrays(const std::vector<std::string>& differences)
{
    std::vector<std::string> left;
    for (const std::string& line : differences)
    {
        // "name: 1 more -> 0 more"
        const std::size_t was = line.find(": 1");
        const std::size_t now = line.find(" -> 0");
        const bool array = line.find("ARRAY") != std::string::npos || line.find(" array") != std::string::npos ||
                           line.find("attribute") != std::string::npos;
        const bool same =
            was != std::string::npos && now != std::string::npos && line.substr(was + 3, now - was - 3) == line.substr(now + 5);
        if (!array || !same)
        {
            left.push_back(line);
        }
    }
    return left;
}
