"""The throttles, seen from behind and the right, where the thumb of the left hand works."""

from hardware.parts import *


# The walls of a base from left to right: the second pair meets at its nearest edge.
LEFT_DARK = ("#22252a", "#2d3137", "#4a515a", "#2b2f35")
LEFT_LIGHT = ("#454b54", "#50575f", "#2b2f35", "#181a1e")


def block(plane, width, length, height, corner):
    """Rounded box on a plane: its top, and its whole outline."""
    a, b = width / 2 - corner, length / 2 - corner
    places = [(-a, -b), (a, -b), (a, b), (-a, b)]
    top = hull([p for x, y in places for p in plane.ring(x, y, corner, height)])
    foot = hull([p for x, y in places for p in plane.ring(x, y, corner)])
    return top, hull(top + foot)


def base(d, ground, forward, across_, height, near, dark, slot_along=0):
    """The box on the desk, with the slot of the arm. near: where its front edge is, from 0 at the left to 1."""
    top, whole = block(ground, forward, across_, height, 14)
    left, right, foot = min(whole)[0], max(whole)[0], max(y for _, y in whole)
    d.shadow(((left + right) / 2 + 4, foot - 44), (right - left) * 0.6, 66)
    sides = ((0, dark[0]), (near - 0.03, dark[1]), (near + 0.03, dark[2]), (1, dark[3]))
    d.fill(path(whole), d.shades((left, 0), (right, 0), sides))
    d.fill(path(top), d.gradient(*across(top), "#737b87", "#454b54"))
    d.line(path(top), "#fff", 1, 0.28)
    d.rim(path(whole))
    slot = rounded(ground.box(0, 0, forward * 0.72, 22, height) if slot_along == 0 else
                   ground.box(0, 0, 22, across_ * 0.72, height), 5)
    screws(d, ground, forward - 34, across_ - 34, height)
    d.fill(slot, "#0d0f11")
    d.line(slot, "#fff", 1, 0.18)


def key(d, outline, lift, text, name, size=12, colours=CAP):
    """A flat key with its name on it, raised by lift pixels."""
    outline = soft(outline, 5)
    top = [(x + lift[0], y + lift[1]) for x, y in outline]
    with d.control(name):
        raised(d, outline, top, colours)
    if text:
        d.legend(name, text, middle(top), size)


def four_way(d, plane, a, b, inner, outer, keys, size):
    """Four keys about a point, the first above, then to the right, below, to the left."""
    well(d, plane.ring(a, b, outer + 4))
    wide, gap = outer * 0.56, 1.5
    shapes = (((-wide, -outer + 9), (0, -outer), (wide, -outer + 9), (inner * 0.62 + gap, -inner), (-inner * 0.62 - gap, -inner)),)
    for i, (name, text) in enumerate(keys):
        turned = []
        for x, y in shapes[0]:
            for _ in range(i):
                x, y = -y, x
            turned.append(plane.at(a + x, b + y))
        lift = plane.at(a, b, 5)
        zero = plane.at(a, b)
        key(d, turned, (lift[0] - zero[0], lift[1] - zero[1]), text, name, size)


def knob(d, plane, a, b, radius, height):
    """A knurled knob with a mark."""
    well(d, plane.ring(a, b, radius + 3))
    raised(d, plane.ring(a, b, radius), plane.ring(a, b, radius, height), CAP, knurls=2)
    inner = plane.ring(a, b, radius * 0.74, height)
    d.fill(path(inner), d.gradient(*across(inner), "#848d99", "#c9cfd6"))
    d.line(path([plane.at(a, b, height), plane.at(a, b - radius * 0.92, height)], close=False), "#22262b", 3)


def rocker(d, plane, a, b, width, length, keys, size):
    """A switch of two or three positions, one above the other."""
    frame = plane.box(a, b, width + 8, length + 8)
    d.fill(rounded(frame, 6), "#121417")
    step = length / len(keys)
    lift, zero = plane.at(a, b, 4), plane.at(a, b)
    for i, (name, text) in enumerate(keys):
        part = plane.box(a, b - length / 2 + step * (i + 0.5) - 1, width, step - 5)
        key(d, part, (lift[0] - zero[0], lift[1] - zero[1]), text, name, size)


def ticks(d, plane, height, length, count):
    """Marks along the slot of the arm."""
    for i in range(count):
        a = -length / 2 + length * i / (count - 1)
        size = 12 if i in (0, count - 1) else 7
        d.line(path([plane.at(a, 20, height), plane.at(a, 20 + size, height)], close=False), "#d3d8de", 1.6, 0.7)


TQS_FORWARD, TQS_RIGHT, TQS_UP = (0.84, -0.22), (0.52, 0.34), (0, -0.91)


def tqs_handle(d, side):
    """The grip as it lies in the left hand: thick at the palm, bent down in front of the fingers."""
    profile = [(-176, 14), (-168, -36), (-128, -68), (-50, -80), (50, -84), (130, -78), (172, -54), (188, -8), (186, 50),
               (168, 82), (120, 86), (50, 78), (-30, 80), (-110, 88), (-158, 66)]
    near = [side.at(a, b) for a, b in curve(profile)]
    far = [side.at(a * 0.97, b * 0.97, -78) for a, b in curve(profile)]
    edge = [side.at(a * 0.96, b * 0.92 + 1, 5) for a, b in curve(profile)]
    whole = hull(near + far)
    d.fill(path(whole), d.shades((70, 250), (420, 30), ((0, "#1b1e22"), (0.22, "#2f343a"), (0.4, "#59606a"), (1, "#7d8591"))))
    d.rim(path(whole))
    d.fill(path(near), d.gradient((150, 60), (420, 330), "#8a929e", "#474d56", "#1f2226"))
    d.fill(path(edge), d.gradient((130, 110), (440, 300), "#666e79", "#4a515a", "#343940"))
    d.line(path(edge), "#fff", 1, 0.16)


def tqs():
    d = Drawing(580, 480, "TQS throttle")
    ground = Plane((246, 380), TQS_FORWARD, TQS_RIGHT, TQS_UP)
    base(d, ground, 330, 166, 40, 0.2, LEFT_DARK)
    ticks(d, ground, 40, 220, 9)
    arm = [(206, 352), (214, 280), (236, 240), (330, 240), (296, 300), (276, 340), (262, 352), (232, 360)]
    d.fill(smooth(arm), d.gradient((206, 0), (300, 0), "#1f2226", "#59606a", "#2b2f35"))
    d.rim(smooth(arm))
    side = Plane((286, 182), TQS_FORWARD, (0, 0.91), TQS_RIGHT)
    front = Plane(side.at(206, 0, -40), TQS_RIGHT, (0, 0.91), TQS_FORWARD)
    tqs_handle(d, side)
    with d.control("ROTARY(1)"):
        knob(d, front, -4, -2, 27, 30)
    top = Plane(side.at(0, -78, -38), TQS_FORWARD, TQS_RIGHT, TQS_UP)
    with d.control("ROTARY(0)"):
        knob(d, top, -62, 4, 25, 26)
    with d.control("BTN(11)"):
        button(d, top, 44, 0, 18, CAP, 9)
    four_way(d, side, -109, 3, 14, 50, (("BTN(24)", "T2"), ("BTN(27)", "T3"), ("BTN(26)", "T4"), ("BTN(25)", "T5")), 12)
    rocker(d, side, -33, 0, 30, 92, (("BTN(12)", "T7"), ("BTN(13)", "T8")), 12)
    rocker(d, side, 15, 0, 34, 92, (("BTN(14)", "T9"), ("BTN(15)", "T10")), 12)
    four_way(d, side, 98, 0, 22, 55, (("BTN(30)", "T11"), ("BTN(29)", "T12"), ("BTN(28)", "T13"), ("BTN(31)", "T14")), 11)
    with d.control("BTN(32)"):
        button(d, side, 98, 0, 14)
    with d.control("ROTARY(5)"):
        ribbon(d, ground, 8, 124, 250, along=0)
    x, y = ground.at(138, 128)
    d.label("ROTARY(5)", "Throttle", (x + 10, y + 12))
    for name, text, y, start in (("ROTARY(0)", "RNG", 30, (214, 87)), ("BTN(11)", "T6", 30, (304, 78))):
        d.label(name, text, (start[0], y), "middle", [start, (start[0], y + 8)])
    d.label("ROTARY(1)", "ANT", (500, 100), "start", [(474, 104), (483, 95), (494, 95)])
    d.label("BTN(32)", "T1", (500, 232), "start", [(382, 168), (441, 227), (494, 227)])
    return d


def slide(d, plane, a, b, colours):
    """A small sliding switch of three places."""
    well(d, soft(plane.box(a, b, 30, 13), 4))
    knob_at = plane.box(a, b, 10, 9)
    raised(d, soft(knob_at, 2), soft(plane.box(a, b, 10, 9, 4), 2), colours)
    for mark in (-10, 0, 10):
        d.line(path([plane.at(a + mark, b - 11), plane.at(a + mark, b - 14)], close=False), "#d3d8de", 1.2, 0.7)


WCS_FORWARD, WCS_RIGHT, WCS_UP = (0.5, -0.34), (0.87, 0.20), (0, -0.92)
WCS_BUTTONS = (("BTN(21)", "BTN(22)", "BTN(23)"), ("BTN(19)", "BTN(20)", "BTN(18)"))


def wcs_handle(d, back, side):
    """A block across the arm, round at its edges."""
    corners = [(-112, -48, 32), (112, -48, 32), (112, 48, 32), (-112, 48, 32)]
    near = hull([p for a, b, r in corners for p in back.ring(a, b, r)])
    far = hull([p for a, b, r in corners for p in back.ring(a, b, r, -112)])
    whole = hull(near + far)
    d.fill(path(whole), d.shades((200, 40), (470, 240), ((0, "#858d99"), (0.45, "#6b737e"), (0.62, "#2f343a"), (1, "#1e2125"))))
    d.rim(path(whole))
    d.fill(path(near), d.gradient(near[0], (near[0][0] + 160, near[0][1] + 150), "#7f8793", "#474d56", "#24272c"))
    plate = back.box(0, 0, 272, 140, 3)
    d.fill(rounded(plate, 26), d.gradient(*across(plate), "#626a75", "#4a515a", "#353a41"))
    d.line(rounded(plate, 26), "#fff", 1, 0.18)


def wcs_picture(title, names, rocker_names):
    d = Drawing(580, 480, title)
    ground = Plane((262, 380), WCS_RIGHT, (-0.5, 0.34), WCS_UP)
    base(d, ground, 250, 250, 46, 0.635, LEFT_LIGHT, slot_along=1)
    wall = Plane(ground.at(0, 125, 23), WCS_RIGHT, (0, 0.92), (-0.5, 0.34))
    for a, colours in ((-88, RED), (-48, DARK)):
        slide(d, wall, a, 6, colours)
    arm = [(236, 336), (240, 250), (330, 250), (322, 330), (280, 346)]
    d.fill(smooth(arm), d.gradient((236, 0), (330, 0), "#2b2f35", "#59606a", "#1f2226"))
    d.rim(smooth(arm))
    back = Plane((250, 176), WCS_RIGHT, (0, 0.92), (-0.5, 0.34))
    side = Plane(back.at(146, 0, -56), WCS_FORWARD, (0, 0.92), WCS_RIGHT)
    wcs_handle(d, back, side)
    for row, b in zip(WCS_BUTTONS, (-34, 34)):
        for name, a in zip(row, (-86, 0, 86)):
            well(d, soft(back.box(a, b, 70, 52, 3), 8))
            lift, zero = back.at(0, 0, 12), back.at(0, 0, 3)
            key(d, back.box(a, b, 62, 44, 3), (lift[0] - zero[0], lift[1] - zero[1]), names[name], name, 17)
    rocker(d, side, -4, -2, 66, 106, [(name, "") for name in ("BTN(16)", "BTN(4)", "BTN(17)")], 12)
    for name, text, b in zip(("BTN(16)", "BTN(4)", "BTN(17)"), rocker_names, (-37, -2, 33)):
        x, y = side.at(14, b, 4)
        if text:
            d.label(name, text, (480, y + 5), "start", [(x, y), (474, y)])
    with d.control("ROTARY(9)"):
        ribbon(d, ground, 170, 6, 200, along=1)
    x, y = ground.at(170, -84)
    d.label("ROTARY(9)", "Throttle", (x + 24, y + 12))
    return d


def wcs():
    names = {"BTN(21)": "T3", "BTN(22)": "T2", "BTN(23)": "T1", "BTN(19)": "T4", "BTN(20)": "T5", "BTN(18)": "T6"}
    return wcs_picture("WCS throttle", names, ("T7", "", "T8"))


def wcs_with_older_stick():
    names = {"BTN(21)": "3", "BTN(22)": "2", "BTN(23)": "1", "BTN(19)": "4", "BTN(20)": "5", "BTN(18)": "6"}
    return wcs_picture("WCS throttle beside an older joystick", names, ("RKR UP", "RKR MD", "RKR DN"))
