// SPDX-License-Identifier: MIT
#pragma once

/// Names that the headers of OpenGL 1.1 lack.
namespace GlNames
{
constexpr unsigned int ActiveTexture = 0x84E0;
constexpr unsigned int ArrayBuffer = 0x8892;
constexpr unsigned int ArrayBufferBinding = 0x8894;
constexpr unsigned int BlendDestinationAlpha = 0x80CA;
constexpr unsigned int BlendDestinationRgb = 0x80C8;
constexpr unsigned int BlendEquationAlpha = 0x883D;
constexpr unsigned int BlendEquationRgb = 0x8009;
constexpr unsigned int BlendSourceAlpha = 0x80CB;
constexpr unsigned int BlendSourceRgb = 0x80C9;
constexpr unsigned int ClientActiveTexture = 0x84E1;
constexpr unsigned int ClipDepthMode = 0x935D;
constexpr unsigned int ClipDistance0 = 0x3000;
constexpr unsigned int ClipOrigin = 0x935C;
constexpr unsigned int ColorSum = 0x8458;
constexpr unsigned int CurrentProgram = 0x8B8D;
constexpr unsigned int DrawFramebuffer = 0x8CA9;
constexpr unsigned int DrawFramebufferBinding = 0x8CA6;
constexpr unsigned int FogCoordinateArray = 0x8457;
constexpr unsigned int FramebufferSrgb = 0x8DB9;
constexpr unsigned int FunctionAdd = 0x8006;
constexpr unsigned int LowerLeft = 0x8CA1;
constexpr unsigned int MaxTextureCoordinates = 0x8871;
constexpr unsigned int MaxTextureUnits = 0x84E2;
constexpr unsigned int MaxVertexAttributes = 0x8869;
constexpr unsigned int NegativeOneToOne = 0x935E;
constexpr unsigned int ProgramPipelineBinding = 0x825A;
constexpr unsigned int ReadFramebuffer = 0x8CA8;
constexpr unsigned int ReadFramebufferBinding = 0x8CAA;
constexpr unsigned int SampleAlphaToCoverage = 0x809E;
constexpr unsigned int SampleAlphaToOne = 0x809F;
constexpr unsigned int SampleCoverage = 0x80A0;
constexpr unsigned int SampleMask = 0x8E51;
constexpr unsigned int SamplerBinding = 0x8919;
constexpr unsigned int SecondaryColorArray = 0x845E;
constexpr unsigned int StreamDraw = 0x88E0;
constexpr unsigned int Texture0 = 0x84C0;
constexpr unsigned int Texture3D = 0x806F;
constexpr unsigned int TextureCubeMap = 0x8513;
constexpr unsigned int TextureRectangle = 0x84F5;
constexpr unsigned int VertexArrayBinding = 0x85B5;
constexpr unsigned int VertexProgramTwoSide = 0x8643;
} // namespace GlNames
