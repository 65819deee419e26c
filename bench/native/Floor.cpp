// SPDX-License-Identifier: MIT
#include "Contestant.h"

#include <GL/gl.h>

namespace bench
{
namespace
{
struct Vertex
{
    float x, y, u, v;
};

/// Neighbours in the drawing order with the same texture.
struct Run
{
    GLuint texture;
    GLint first;
    GLsizei count;
};

class Floor : public Contestant
{
public:
    explicit Floor(const DrawList& list) : width_(list.width), height_(list.height)
    {
        for (const Picture& picture : list.pictures)
        {
            textures_.push_back(UploadTexture(picture));
        }
        for (const Quad& quad : list.quads)
        {
            const GLuint texture = textures_[static_cast<std::size_t>(quad.picture)];
            if (runs_.empty() || runs_.back().texture != texture)
            {
                runs_.push_back({texture, static_cast<GLint>(vertices_.size()), 0});
            }
            runs_.back().count += 4;
            vertices_.insert(vertices_.end(), {{quad.left, quad.top, quad.u0, quad.v0},
                                               {quad.right, quad.top, quad.u1, quad.v0},
                                               {quad.right, quad.bottom, quad.u1, quad.v1},
                                               {quad.left, quad.bottom, quad.u0, quad.v1}});
        }
    }

    ~Floor() override { DeleteTextures(textures_); }

    void Draw() override
    {
        glPushAttrib(GL_ENABLE_BIT | GL_COLOR_BUFFER_BIT | GL_TEXTURE_BIT | GL_CURRENT_BIT | GL_TRANSFORM_BIT);
        glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        glOrtho(0, width_, height_, 0, -1, 1);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glLoadIdentity();
        glDisable(GL_DEPTH_TEST);
        glDisable(GL_CULL_FACE);
        glEnable(GL_TEXTURE_2D);
        glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        glEnableClientState(GL_VERTEX_ARRAY);
        glEnableClientState(GL_TEXTURE_COORD_ARRAY);
        glVertexPointer(2, GL_FLOAT, sizeof(Vertex), &vertices_[0].x);
        glTexCoordPointer(2, GL_FLOAT, sizeof(Vertex), &vertices_[0].u);
        for (const Run& run : runs_)
        {
            glBindTexture(GL_TEXTURE_2D, run.texture);
            glDrawArrays(GL_QUADS, run.first, run.count);
        }
        glPopMatrix();
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
        glPopClientAttrib();
        glPopAttrib();
    }

private:
    int width_;
    int height_;
    std::vector<GLuint> textures_;
    std::vector<Vertex> vertices_;
    std::vector<Run> runs_;
};
} // namespace

std::unique_ptr<Contestant> MakeFloor(const DrawList& list)
{
    return std::make_unique<Floor>(list);
}
} // namespace bench
