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


F22_F16_GRIP = [(147, 88), (154, 62), (176, 45), (214, 31), (246, 24), (273, 30), (289, 50), (302, 90), (314, 136),
                (319, 164), (313, 182), (302, 206), (295, 236), (293, 266), (297, 300), (307, 328), (322, 344),
                (326, 358), (304, 375), (270, 387), (226, 389), (190, 377), (186, 350), (185, 320), (188, 292),
                (193, 264), (192, 238), (197, 216), (194, 197), (178, 178), (162, 152), (150, 118)]


def f22_f16_grip(d):
    outline = F22_F16_GRIP
    d.fill(smooth(outline), d.shades((146, 0), (326, 0), ((0, "#5b626c"), (0.3, "#5f6771"), (0.46, "#58606a"),
                                                        (0.62, "#41474f"), (0.85, "#2b2f35"), (1, "#1e2125"))))
    # below the head it is darker, and the side turns into the back along a soft ridge
    d.fill(smooth(outline), d.glow((190, 196), 52, "#0a0b0d", 0.62))
    d.line(smooth([(244, 214), (239, 250), (238, 300), (232, 352)], close=False), "#fff", 7, 0.06)
    d.line(smooth([(316, 340), (308, 354), (278, 368), (240, 374), (200, 368)], close=False), "#fff", 1.6, 0.2)
    for y in (270, 296, 322):
        d.line(smooth([(192, y), (202, y + 6), (220, y + 9)], close=False), "#0e1012", 2, 0.3)
    d.rim(smooth(outline))


def f22_f16_face(d):
    """Where the thumb works: a plate on the back of the head."""
    plate = [(189, 70), (283, 45), (318, 168), (250, 200)]
    d.fill(rounded(plate, 26), d.gradient((201, 56), (306, 196), "#6b737e", "#484f58", "#2f343a"))
    d.line(rounded(plate, 26), "#0e1012", 1, 0.5)
    d.line(smooth([(194, 84), (200, 72), (222, 62), (266, 51)], close=False), "#fff", 1.4, 0.45)
    d.line(smooth([(156, 70), (176, 54), (214, 40), (248, 32), (270, 37)], close=False), "#fff", 2.2, 0.3)


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
    ground, size = floor(250, 400), 216
    cable = smooth([(322, 372), (360, 348), (396, 306), (420, 254), (470, 226)], close=False)
    base(d, ground, size, 38)
    with d.beside("ROTARY(7)"):
        d.line(cable, "currentColor", 7, 0.45)
        d.line(cable, "#30353b", 5)
    boot(d, ground, 70, 38)
    f22_f16_grip(d)
    with d.control("TRIG"):
        lever(d, [(176, 174), (160, 188), (150, 210), (149, 236), (157, 250), (166, 247), (169, 231), (175, 217), (197, 208)],
              F22_F16_GRIP, CAP, [(172, 186), (162, 197), (156, 215), (156, 237)])
        d.line(path([(153, 205), (172, 213)], close=False), DARK[1], 2)
        d.line(path([(151, 216), (169, 223)], close=False), DARK[1], 2)
    with d.control("BTN(2)"):
        lever(d, [(189, 280), (176, 275), (168, 280), (168, 294), (174, 303), (187, 304)],
              F22_F16_GRIP, CAP, [(182, 281), (174, 281)])
    with d.control("BTN(3)"):
        lever(d, [(185, 318), (168, 324), (153, 340), (145, 362), (151, 378), (165, 375), (174, 362), (187, 356)],
              F22_F16_GRIP, CAP, [(176, 328), (160, 343), (152, 364)])
    f22_f16_face(d)
    face = Plane((256, 118), *FACE)
    side = Plane((198, 130), *SIDE)
    low = Plane((220, 240), *SIDE)
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
    arrows(d, ground, size)
    swap(d, 62, 226)
    plug(d, 468, 204)
    pedals(d, "ROTARY(2)", 488, 354)
    for name, text, y, start in (("BTN(1)", "S2", 44, (217, 84)), ("BTN(0)", "S1", 124, (176, 124)),
                                 ("TRIG", "TG1 TG2", 186, (156, 198)), ("BTN(2)", "S3", 286, (174, 286)),
                                 ("BTN(3)", "S4", 346, (156, 346))):
        d.label(name, text, (98, y + 5), "end", [start, (start[0] - abs(start[1] - y), y), (104, y)])
    for name, text, y, start in (("HAT(0)", "H1", 60, (272, 72)), ("HAT(1)", "H2", 130, (298, 130)),
                                 ("HAT(2)", "H3", 184, (254, 158)), ("HAT(3)", "H4", 240, (224, 240))):
        d.label(name, text, (362, y + 5), "start", [start, (start[0] + abs(start[1] - y), y), (356, y)])
    name_axes(d, ground, size)
    d.label("ROTARY(4)", "SWAPTG", (62, 262), "middle")
    d.label("ROTARY(7)", "PORT", (494, 190), "middle")
    d.label("ROTARY(2)", "Rudder", (496, 410), "middle")
    return d


OLDER_GRIP = [(140, 92), (148, 64), (172, 44), (206, 34), (238, 40), (262, 62), (277, 98), (285, 136), (280, 166),
              (268, 190), (260, 222), (260, 256), (266, 292), (272, 316), (274, 336), (258, 350), (224, 357), (190, 353),
              (170, 342), (166, 330), (174, 318), (166, 304), (165, 292), (174, 276), (166, 258), (166, 242), (176, 224),
              (174, 206), (162, 186), (150, 160), (142, 126)]


def older_grip(d):
    outline = OLDER_GRIP
    d.fill(smooth(outline), d.shades((140, 0), (286, 0), ((0, "#565d66"), (0.28, "#626a74"), (0.5, "#535a64"),
                                                        (0.7, "#3a4048"), (1, "#1e2125"))))
    d.fill(smooth(outline), d.glow((172, 204), 46, "#0a0b0d", 0.62))
    d.line(smooth([(228, 214), (224, 260), (226, 310), (224, 356)], close=False), "#fff", 7, 0.06)
    d.line(smooth([(150, 74), (174, 55), (206, 45), (234, 50)], close=False), "#fff", 2.2, 0.3)
    d.rim(smooth(outline))
    plate = smooth([(180, 84), (200, 60), (230, 54), (254, 74), (268, 112), (272, 146), (254, 168), (228, 172), (204, 150),
                    (188, 118)])
    d.fill(plate, d.gradient((188, 62), (272, 170), "#6b737e", "#484f58", "#2f343a"))
    d.line(plate, "#0e1012", 1, 0.5)


def older_stick():
    d = Drawing(580, 480, "P FCS, Top Gun or FCS joystick")
    ground = floor(224, 404)
    base(d, ground, 206, 40)
    boot(d, ground, 78, 40, 5)
    older_grip(d)
    with d.control("BTN(6)"):
        lever(d, [(164, 184), (150, 188), (138, 202), (132, 222), (134, 244), (143, 250), (150, 240), (156, 226), (174, 220)],
              OLDER_GRIP, RED, [(156, 193), (145, 205), (139, 222), (140, 238)])
    with d.control("HAT(4)"):
        hat(d, Plane((230, 108), *FACE), 0, 0, 24, 12)
    for name, at, size in (("BTN(5)", (170, 108), 15), ("BTN(7)", (188, 168), 15), ("BTN(8)", (202, 262), 15)):
        with d.control(name):
            button(d, Plane(at, *SIDE), 0, 0, size)
    pedals(d, "ROTARY(8)", 472, 394)
    for name, text, y, start in (("BTN(5)", "UB", 76, (162, 100)), ("BTN(7)", "MB", 150, (172, 164)),
                                 ("BTN(6)", "TG", 204, (142, 210)), ("BTN(8)", "LB", 262, (188, 262))):
        d.label(name, text, (90, y + 5), "end", [start, (start[0] - abs(start[1] - y), y), (96, y)])
    d.label("HAT(4)", "H", (342, 85), "start", [(254, 92), (266, 80), (336, 80)])
    d.label("ROTARY(8)", "Rudder", (480, 448), "middle")
    return d
