"""The joysticks, seen from behind and a little from the left: front and left side, trigger and palm are all in view."""

from hardware.parts import *

FORWARD, RIGHT, UP = (-0.57, -0.28), (0.82, -0.195), (0, -0.94)
FLOOR_BACK = (0.57, 0.28)


def floor(x, y):
    """The ground under a stick: to the right, towards the pilot, up."""
    return Plane((x, y), RIGHT, FLOOR_BACK, UP)


def base(d, ground, size, height):
    """The box a stick stands on."""
    d.shadow(ground.at(8, 4), size * 0.92, size * 0.36)
    half = size / 2 - 12
    corners = [(x * half, y * half) for x, y in ((-1, -1), (1, -1), (1, 1), (-1, 1))]
    top = hull([p for a, b in corners for p in ground.ring(a, b, 12, height)])
    lower = hull([p for a, b in corners for p in ground.ring(a, b, 12)])
    whole = hull(top + lower)
    left, right = min(whole)[0], max(whole)[0]
    edge = ground.at(-half, half)[0]
    near = (edge - left) / (right - left)
    stops = ((0, "#50575f"), (near - 0.05, "#343940"), (near + 0.03, "#2b2f35"), (1, "#16181b"))
    d.fill(path(whole), d.shades((left, 0), (right, 0), stops))
    d.fill(path(top), d.gradient(ground.at(-half, -half, height), ground.at(half, half, height), "#737b87", "#454b54"))
    d.line(path(top), "#fff", 1, 0.28)
    d.rim(path(whole))
    screws(d, ground, size - 30, size - 30, height)


def boot(d, ground, radius, height, folds=2):
    """The rubber folds around the foot of the grip."""
    for i in range(folds):
        h = height + i * 7
        r = radius * (1 - i * 0.09)
        raised(d, ground.ring(0, 0, r, h), ground.ring(0, 0, r * 0.95, h + 6), DARK)


# How the surfaces of a grip lie: the face below the thumb looks back and up, the side looks left.
FACE = ((0.82, -0.195), (0.327, 0.93), (0.467, -0.31))
SIDE = ((0.57, 0.28), (0.03, 0.94), (-0.82, 0.195))


def pedals(d, name, x, y):
    """Rudder pedals on their rails: the left one is pushed."""
    ground = floor(x, y)
    with d.beside(name):
        d.shadow(ground.at(-6, 6), 84, 38)
    with d.control(name):
        slab = [ground.box(0, 0, 148, 76, h) for h in (0, 9)]
        raised(d, soft(slab[0], 8), soft(slab[1], 8), DARK)
        d.rim(path(hull(soft(slab[0], 8) + soft(slab[1], 8))))
        for side, shift in ((1, 14), (-1, -10)):
            d.fill(rounded(ground.box(side * 36, 0, 12, 62, 9), 4), "#0b0c0e")
            post = [ground.box(side * 36, shift, 16, 12, h) for h in (9, 22)]
            raised(d, post[0], post[1], DARK)
            plate = Plane(ground.at(side * 36, shift + 6, 20), *FACE)
            outline = [(-24, -62), (24, -62), (25, 4), (-25, 4)]
            raised(d, soft([plate.at(a, b, -7) for a, b in outline], 9), soft([plate.at(a, b) for a, b in outline], 9), CAP)
            for row in range(5):
                d.line(path([plate.at(-16, -51 + row * 11), plate.at(16, -51 + row * 11)], close=False), DARK[1], 2.6)


def arrows(d, ground, size):
    """The two axes of the stick, on the floor beside its base."""
    with d.control("ROTARY(3)"):
        ribbon(d, ground, 4, size / 2 + 42, size - 30, along=0)
    with d.control("ROTARY(6)"):
        ribbon(d, ground, -size / 2 - 34, 4, size - 30, along=1)


def name_axes(d, ground, size):
    x, y = ground.at(size / 2 - 8, size / 2 + 42)
    d.label("ROTARY(3)", "JSX", (x - 28, y + 38))
    x, y = ground.at(-size / 2 - 34, -size / 2 + 12)
    d.label("ROTARY(6)", "JSY", (x - 8, y + 2), "end")


def lever(d, outer, grip, colours, light):
    """What sticks out in front of a grip: its outer line from top to bottom, closed along the grip's contour."""
    edge = along(grip, outer[-1], outer[0])
    outer = [edge[-1], *outer[1:-1], edge[0]]
    shape = smooth(outer, close=False) + "L" + "L".join(f"{number(x)} {number(y)}" for x, y in edge[1:-1]) + "z"
    d.fill(shape, d.gradient(*across(outer), *colours))
    d.line(shape, "#0e1012", 1, 0.7)
    d.line(smooth(light, close=False), "#fff", 2, 0.5)


F22_F16_GRIP = [(161, 88), (168, 62), (190, 45), (228, 31), (260, 24), (287, 30), (303, 50), (316, 90), (328, 136),
                (333, 164), (327, 182), (316, 206), (309, 236), (307, 266), (311, 300), (321, 328), (336, 344),
                (340, 358), (318, 375), (284, 387), (240, 389), (204, 377), (200, 350), (199, 320), (202, 292),
                (207, 264), (206, 238), (211, 216), (208, 197), (192, 178), (176, 152), (164, 118)]


def f22_f16_grip(d):
    outline = F22_F16_GRIP
    d.fill(smooth(outline), d.shades((160, 0), (340, 0), ((0, "#5b626c"), (0.3, "#5f6771"), (0.46, "#58606a"),
                                                        (0.62, "#41474f"), (0.85, "#2b2f35"), (1, "#1e2125"))))
    # below the head it is darker, and the side turns into the back along a soft ridge
    d.fill(smooth(outline), d.glow((204, 196), 52, "#0a0b0d", 0.62))
    d.line(smooth([(258, 214), (253, 250), (252, 300), (246, 352)], close=False), "#fff", 7, 0.06)
    d.line(smooth([(330, 340), (322, 354), (292, 368), (254, 374), (214, 368)], close=False), "#fff", 1.6, 0.2)
    for y in (270, 296, 322):
        d.line(smooth([(206, y), (216, y + 6), (234, y + 9)], close=False), "#0e1012", 2, 0.3)
    d.rim(smooth(outline))


def f22_f16_face(d):
    """Where the thumb works: a plate on the back of the head."""
    plate = [(203, 70), (297, 45), (332, 168), (264, 200)]
    d.fill(rounded(plate, 26), d.gradient((215, 56), (320, 196), "#6b737e", "#484f58", "#2f343a"))
    d.line(rounded(plate, 26), "#0e1012", 1, 0.5)
    d.line(smooth([(208, 84), (214, 72), (236, 62), (280, 51)], close=False), "#fff", 1.4, 0.45)
    d.line(smooth([(170, 70), (190, 54), (228, 40), (262, 32), (284, 37)], close=False), "#fff", 2.2, 0.3)


def swap(d, x, y):
    """Two arrows past each other."""
    with d.control("ROTARY(4)"):
        disc = Plane((x, y), (1, 0), (0, 1), (0, 0)).ring(0, 0, 17)
        d.fill(path(disc), d.gradient(*across(disc), BLUE[1], BLUE[2]))
        d.line(path(disc), BLUE[0], 1, 0.8)
        for side in (-1, 1):
            arrow = [(-9, -2), (3, -2), (3, -6), (10, 0), (3, 6), (3, 2), (-9, 2)]
            d.fill(path([(x + side * px, y + side * (py - 5)) for px, py in arrow]), "#fff")


def plug(d, x, y):
    """The plug of the game port, at the end of the cable."""
    with d.control("ROTARY(7)"):
        shell = [(x, y), (x + 30, y - 7), (x + 30, y + 45), (x, y + 38)]
        d.fill(rounded(shell, 6), d.gradient((x, y), (x, y + 45), BODY[0], BODY[1], BODY[2]))
        d.rim(rounded(shell, 6))
        for i in range(3):
            d.line(path([(x + 6 + i * 6, y + 6), (x + 6 + i * 6, y + 32)], close=False), "#0e1012", 2, 0.5)
        face = [(x + 32, y - 12), (x + 50, y - 6), (x + 50, y + 44), (x + 32, y + 50)]
        d.fill(rounded(face, 5), d.gradient((x + 32, y), (x + 50, y + 45), *CAP))
        d.line(rounded(face, 5), "#0e1012", 1, 0.6)
        for column, count in ((38, 8), (45, 7)):
            for i in range(count):
                cy = y + 19 + (i - (count - 1) / 2) * 6
                d.add(f'<circle cx="{x + column}" cy="{number(cy)}" r="1.5" fill="#22262b"/>')


def f22_f16_stick():
    d = Drawing(580, 480, "F-22 Pro or F-16 FLCS joystick")
    ground = floor(262, 404)
    cable = smooth([(330, 380), (374, 354), (406, 318), (424, 276), (470, 256)], close=False)
    base(d, ground, 186, 34)
    with d.beside("ROTARY(7)"):
        d.line(cable, "currentColor", 7, 0.45)
        d.line(cable, "#30353b", 5)
    boot(d, ground, 64, 34)
    f22_f16_grip(d)
    with d.control("TRIG"):
        lever(d, [(190, 174), (174, 188), (164, 210), (163, 236), (171, 250), (180, 247), (183, 231), (189, 217), (211, 208)],
              F22_F16_GRIP, CAP, [(186, 186), (176, 197), (170, 215), (170, 237)])
        d.line(path([(167, 205), (186, 213)], close=False), DARK[1], 2)
        d.line(path([(165, 216), (183, 223)], close=False), DARK[1], 2)
    with d.control("BTN(2)"):
        lever(d, [(203, 280), (190, 275), (182, 280), (182, 294), (188, 303), (201, 304)],
              F22_F16_GRIP, CAP, [(196, 281), (188, 281)])
    with d.control("BTN(3)"):
        lever(d, [(199, 318), (182, 324), (167, 340), (159, 362), (165, 378), (179, 375), (188, 362), (201, 356)],
              F22_F16_GRIP, CAP, [(190, 328), (174, 343), (166, 364)])
    f22_f16_face(d)
    face = Plane((270, 118), *FACE)
    side = Plane((212, 130), *SIDE)
    low = Plane((234, 240), *SIDE)
    with d.control("BTN(1)"):
        button(d, face, -27, -34, 14, RED)
    with d.control("HAT(0)"):
        hat(d, face, 19, -36, 17)
    with d.control("HAT(2)"):
        hat(d, face, -20, 29, 16)
    with d.control("HAT(1)"):
        hat(d, face, 30, 20, 16)
    with d.control("BTN(0)"):
        button(d, side, -22, 2, 14)
    with d.control("HAT(3)"):
        hat(d, low, 0, 0, 18)
    arrows(d, ground, 186)
    swap(d, 76, 226)
    plug(d, 468, 236)
    pedals(d, "ROTARY(2)", 492, 388)
    for name, text, y, start in (("BTN(1)", "S2", 44, (231, 84)), ("BTN(0)", "S1", 124, (190, 124)),
                                 ("TRIG", "TG1 TG2", 186, (170, 198)), ("BTN(2)", "S3", 286, (188, 286)),
                                 ("BTN(3)", "S4", 346, (170, 346))):
        d.label(name, text, (112, y + 5), "end", [start, (start[0] - abs(start[1] - y), y), (118, y)])
    for name, text, y, start in (("HAT(0)", "H1", 60, (286, 72)), ("HAT(1)", "H2", 130, (312, 130)),
                                 ("HAT(2)", "H3", 184, (268, 158)), ("HAT(3)", "H4", 240, (238, 240))):
        d.label(name, text, (376, y + 5), "start", [start, (start[0] + abs(start[1] - y), y), (370, y)])
    name_axes(d, ground, 186)
    d.label("ROTARY(4)", "SWAPTG", (76, 262), "middle")
    d.label("ROTARY(7)", "PORT", (494, 222), "middle")
    d.label("ROTARY(2)", "Rudder", (500, 450), "middle")
    return d


OLDER_GRIP = [(174, 92), (182, 64), (206, 44), (240, 34), (272, 40), (296, 62), (311, 98), (319, 136), (314, 166),
              (302, 190), (294, 222), (294, 256), (300, 292), (306, 316), (308, 336), (292, 350), (258, 357), (224, 353),
              (204, 342), (200, 330), (208, 318), (200, 304), (199, 292), (208, 276), (200, 258), (200, 242), (210, 224),
              (208, 206), (196, 186), (184, 160), (176, 126)]


def older_grip(d):
    outline = OLDER_GRIP
    d.fill(smooth(outline), d.shades((174, 0), (320, 0), ((0, "#565d66"), (0.28, "#626a74"), (0.5, "#535a64"),
                                                        (0.7, "#3a4048"), (1, "#1e2125"))))
    d.fill(smooth(outline), d.glow((206, 204), 46, "#0a0b0d", 0.62))
    d.line(smooth([(262, 214), (258, 260), (260, 310), (258, 356)], close=False), "#fff", 7, 0.06)
    d.line(smooth([(184, 74), (208, 55), (240, 45), (268, 50)], close=False), "#fff", 2.2, 0.3)
    d.rim(smooth(outline))
    plate = smooth([(214, 84), (234, 60), (264, 54), (288, 74), (302, 112), (306, 146), (288, 168), (262, 172), (238, 150),
                    (222, 118)])
    d.fill(plate, d.gradient((222, 62), (306, 170), "#6b737e", "#484f58", "#2f343a"))
    d.line(plate, "#0e1012", 1, 0.5)


def older_stick():
    d = Drawing(580, 480, "P FCS, Top Gun or FCS joystick")
    ground = floor(258, 404)
    base(d, ground, 206, 40)
    boot(d, ground, 78, 40, 5)
    older_grip(d)
    with d.control("BTN(6)"):
        lever(d, [(198, 184), (184, 188), (172, 202), (166, 222), (168, 244), (177, 250), (184, 240), (190, 226), (208, 220)],
              OLDER_GRIP, RED, [(190, 193), (179, 205), (173, 222), (174, 238)])
    with d.control("HAT(4)"):
        hat(d, Plane((264, 108), *FACE), 0, 0, 24, 12)
    for name, at, size in (("BTN(5)", (204, 108), 15), ("BTN(7)", (222, 168), 15), ("BTN(8)", (236, 262), 15)):
        with d.control(name):
            button(d, Plane(at, *SIDE), 0, 0, size)
    pedals(d, "ROTARY(8)", 490, 396)
    for name, text, y, start in (("BTN(5)", "UB", 76, (196, 100)), ("BTN(7)", "MB", 150, (206, 164)),
                                 ("BTN(6)", "TG", 204, (176, 210)), ("BTN(8)", "LB", 262, (222, 262))):
        d.label(name, text, (124, y + 5), "end", [start, (start[0] - abs(start[1] - y), y), (130, y)])
    d.label("HAT(4)", "H", (376, 85), "start", [(288, 92), (300, 80), (370, 80)])
    d.label("ROTARY(8)", "Rudder", (498, 458), "middle")
    return d
