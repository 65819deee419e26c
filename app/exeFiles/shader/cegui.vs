// SPDX-License-Identifier: MIT
#version 120
// Rectangles of the interface arrive in view pixels; the renderer has set up the matrices. The colour has a name of its own:
// where OpenSceneGraph replaces built-in attributes, it replaces the fragment shader's colour of that name as well. The built-in
// one is for fragment shaders of hosts.
varying vec4 guiColor;

void main()
{
    gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;
    guiColor = gl_Color;
    gl_FrontColor = gl_Color;
    gl_TexCoord[0] = gl_MultiTexCoord0;
}
