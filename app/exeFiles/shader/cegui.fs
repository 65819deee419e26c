// SPDX-License-Identifier: MIT
uniform sampler2D diffuseMap;

void main()
{
    gl_FragColor = texture2D(diffuseMap, gl_TexCoord[0].st) * gl_Color;
}
