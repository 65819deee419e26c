// SPDX-License-Identifier: MIT
// The interface's rectangles come in view pixels; the renderer has set up the matrices.
void main()
{
    gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;
    gl_FrontColor = gl_Color;
    gl_TexCoord[0] = gl_MultiTexCoord0;
}
