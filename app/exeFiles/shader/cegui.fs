// SPDX-License-Identifier: MIT
#version 120
uniform sampler2D diffuseMap;
varying vec4 guiColor;

void main()
{
    gl_FragColor = texture2D(diffuseMap, gl_TexCoord[0].st) * guiColor;
}
