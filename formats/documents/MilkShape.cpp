// MilkShape 3D models (MS3D): counted records of fixed size, comments behind them. Source: MilkShape 3D
// binary model file description, versions 1.4 to 1.8.
#include "formats/Format.h"

namespace vantor {

namespace {

class MilkShapeWalk {
  public:
    explicit MilkShapeWalk(ByteView& view) : m_view(view) {}
    Extent walk();

  private:
    std::uint64_t count16();
    std::uint64_t count32();
    void comments();
    bool parts();
    bool extras();

    ByteView& m_view;
    std::uint64_t m_at = 14;
    std::uint64_t m_vertices = 0, m_joints = 0;
    bool m_ok = true;
};

std::uint64_t MilkShapeWalk::count16() {
    const auto count = m_view.le16(m_at);
    m_ok = m_ok && count;
    m_at += 2;
    return count.value_or(0);
}

std::uint64_t MilkShapeWalk::count32() {
    const auto count = m_view.le32(m_at);
    m_ok = m_ok && count;
    m_at += 4;
    return count.value_or(0);
}

// The model itself: vertices, triangles, groups, materials, joints.
bool MilkShapeWalk::parts() {
    m_vertices = count16();
    m_at += m_vertices * 15;
    const auto triangles = count16();
    m_at += triangles * 70;
    for (auto groups = count16(); m_ok && groups != 0; --groups) {
        m_at += 33;
        const auto members = count16();
        m_at += members * 2 + 1;
    }
    const auto materials = count16();
    m_at += materials * 361 + 12;  // and the animation's speed, time and frames
    m_joints = count16();
    for (auto joints = m_joints; m_ok && joints != 0; --joints) {
        m_at += 89;
        const auto turns = count16(), moves = count16();
        m_at += (turns + moves) * 16;
    }
    return m_ok && m_view.holds(0, m_at);
}

// Comments of one kind, each with the number of what it is for.
void MilkShapeWalk::comments() {
    for (auto many = count32(); m_ok && many != 0; --many) {
        m_at += 4;
        const auto letters = count32();
        m_at = addClamped(m_at, letters);
        m_ok = m_ok && m_view.holds(0, m_at);
    }
}

// What later versions write behind, each part with its own version number.
bool MilkShapeWalk::extras() {
    if (m_view.le32(m_at) != 1U)
        return false;
    m_at += 4;
    comments();                                               // of groups
    comments();                                               // of materials
    comments();                                               // of joints
    for (auto many = count32(); m_ok && many != 0; --many) {  // of the model
        const auto letters = count32();
        m_at = addClamped(m_at, letters);
        m_ok = m_ok && m_view.holds(0, m_at);
    }
    const auto weights = m_view.le32(m_at);
    if (m_ok && weights && *weights >= 1 && *weights <= 3) {
        m_at += 4 + m_vertices * (*weights == 1 ? 6 : *weights == 2 ? 10 : 14);
        if (m_view.le32(m_at) == 1U)
            m_at += 4 + m_joints * 12;
        if (m_view.le32(m_at) == 1U)
            m_at += 4 + 12;
    }
    return m_ok;
}

Extent MilkShapeWalk::walk() {
    if (!m_view.matches(0, "MS3D000000"))
        return unknownExtent();
    if (!parts())
        return cutOffAt(m_view, m_view.size());
    const auto end = m_at;
    // Versions differ in how many of these parts they have, so that nothing marks the end.
    if (extras())
        return inexact(completeAt(m_view, m_at));
    return m_ok ? inexact(completeAt(m_view, end)) : cutOffAt(m_view, m_view.size());
}

Extent walkMilkShape(ByteView& view) {
    return MilkShapeWalk(view).walk();
}

}  // namespace

extern constexpr Format kMilkShape = {
    .name = "MilkShape 3D",
    .group = Group::Documents,
    .walk = walkMilkShape,
    .extensions = " MS3D ",
};

}  // namespace vantor
