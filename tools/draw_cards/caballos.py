"""The four riders (number 11). Horse and rider are drawn facing left and mirrored where a suit rides right."""

import pips
from contextlib import contextmanager
from figure import *
from geometry import spline
from palette import *
from sotas import mark

MIDDLE = 151.5

COATS = {  # body, far legs, mane, hoof
    "white": ("#f4efe4", "#cfc7b8", "#e2d3a8", "#5b5148"),
    "bay": ("#a4602c", "#77421c", "#2c2228", "#2c2228"),
    "black": ("#5f5969", "#433e4c", "#2a2531", "#1b1820"),
    "grey": ("#b9c0c9", "#8d96a3", "#f3f1ec", "#4b4a50"),
}


@contextmanager
def facing(g, right):
    with g.group(f"translate({2 * MIDDLE},0) scale(-1,1)" if right else None):
        yield


def hoof(g, x, y, turn, colour, size=1.0):
    with g.at(x, y, size, turn):
        g.path(spline([(-8, -4, 0), (-15, 9, 0), (9, 9, 0), (9, -4, 0)], closed=True), colour, INK, 2.6)


def far_legs(g, coat):
    body, far, mane, horn = COATS[coat]
    shape = limb([(236, 290), (226, 322), (233, 348), (222, 378)], [56, 34, 20, 15], cap=0)
    g.path(shape, far, INK, 3)
    hoof(g, 220, 386, 8, horn)
    shape = limb([(118, 286), (92, 316), (94, 332), (104, 354)], [42, 27, 19, 14], cap=0)
    g.path(shape, far, INK, 3)
    hoof(g, 106, 360, -40, horn, 0.95)


BODY = [(98, 154), (124, 158), (148, 180), (164, 206), (184, 222), (206, 229), (230, 226), (250, 234), (264, 256),
        (266, 284), (254, 306), (230, 302), (196, 314), (160, 312), (130, 304), (106, 290), (98, 268), (104, 240),
        (110, 220), (100, 214), (88, 222), (76, 232), (66, 245), (54, 247), (45, 238), (46, 222), (56, 200), (68, 176),
        (82, 158)]


def mane_locks(g, mane):
    locks = spline([(92, 150, 0), (112, 146), (140, 162), (162, 196), (172, 218, 0), (158, 214), (160, 226, 0), (146, 208),
                    (144, 222, 0), (132, 196), (126, 208, 0), (120, 180), (110, 188, 0), (108, 166)], closed=True)
    g.path(locks, mane, INK, 2.8)
    g.path(spline([(94, 152, 0), (80, 152), (70, 172), (74, 182, 0), (84, 166), (88, 174, 0)], closed=True), mane, INK, 2.4)


def eye_and_nostril(g):
    g.ellipse(80, 185, 5.4, 4.6, WHITE, INK, 2)
    g.circle(79, 185.5, 3, INK)
    g.path(spline([(72, 180), (80, 177), (88, 182)]), None, INK, 2)
    g.ellipse(52, 229, 2.6, 3.6, INK)


def bridle(g, harness, trim):
    for points in ([(96, 158), (98, 186), (90, 206), (66, 234)], [(60, 192), (70, 204), (84, 212)],
                   [(76, 164), (88, 172), (99, 176)]):
        g.path(spline(points), None, INK, 6.4)
        g.path(spline(points), None, harness, 3.4)
    g.circle(66, 234, 4.2, trim, INK, 2)


def horse(g, coat, harness=RED, trim=GOLD_LIGHT, dapple=False):
    """Walking, the far forefoot lifted."""
    body, far, mane, horn = COATS[coat]
    tail = spline([(256, 238), (272, 246), (281, 276), (277, 318), (262, 352, 0), (264, 330), (254, 344, 0), (258, 310),
                   (262, 280), (254, 256)], closed=True)
    g.path(tail, mane, INK, 3)
    for points in ([(264, 248), (274, 280), (268, 330)], [(262, 256), (267, 290), (262, 326)]):
        g.path(spline(points), None, INK, 1.4, 0.5)
    far_legs(g, coat)
    # near ear behind the poll
    g.path(spline([(90, 162, 0), (84, 138, 0), (98, 142), (104, 160, 0)], closed=True), body, INK, 2.8)
    shape = spline(BODY, closed=True)
    g.path(shape, body, INK, 3)
    # soft shade under the belly and along the breast
    g.path(spline([(132, 302), (160, 309), (196, 311), (226, 301), (196, 300), (160, 299)], closed=True), far, opacity=0.55)
    g.path(spline([(104, 222), (100, 248), (102, 272), (112, 252), (114, 232)], closed=True), far, opacity=0.5)
    # near legs: filled over the body, inked on their free sides only
    hind = [(266, 270), (266, 296), (256, 318), (255, 330), (263, 346), (257, 366), (254, 384), (238, 384), (241, 364),
            (245, 348), (236, 326), (218, 308), (216, 284)]
    g.path(spline(hind, closed=True), body)
    g.path(spline(hind[:-1]), None, INK, 3)
    hoof(g, 247, 388, 0, horn)
    fore = [(146, 292), (143, 322), (141, 345), (138, 366), (137, 384), (122, 384), (124, 364), (122, 345), (116, 320),
            (108, 292)]
    g.path(spline(fore, closed=True), body)
    g.path(spline(fore), None, INK, 3)
    hoof(g, 129, 388, 0, horn)
    if dapple:
        for x, y, r in ((238, 254, 5), (252, 270, 4.5), (236, 276, 5.5), (248, 290, 4), (222, 250, 4), (118, 262, 4.5),
                        (128, 280, 4), (122, 240, 4), (136, 226, 4.5), (130, 206, 4), (228, 296, 4), (146, 208, 3.4)):
            g.circle(x, y, r, "#e6eaf0")
    g.path(spline([(88, 219), (100, 208), (101, 192)]), None, INK, 1.6, 0.6)
    mane_locks(g, mane)
    eye_and_nostril(g)
    g.path(spline([(48, 241), (56, 237), (64, 236)]), None, INK, 2)
    bridle(g, harness, trim)
    # breast strap and crupper
    for points in ([(102, 250), (124, 258), (148, 252)], [(226, 248), (246, 256), (264, 252)]):
        g.path(spline(points), None, INK, 9)
        g.path(spline(points), None, harness, 5.4)
        for x, y in points[:2] if points[0][0] < 200 else points[1:]:
            g.circle(x, y + 5, 4, trim, INK, 1.8)


def cloth(g, colour, motif, border=GOLD):
    """The saddle cloth."""
    shape = spline([(150, 214, 0), (186, 226), (226, 224, 0), (232, 262), (228, 292, 0), (190, 298), (152, 292, 0),
                    (146, 256)], closed=True)
    g.path(shape, colour, INK, 3)
    g.scatter(shape, 22, 20, 8, motif, ox=8, oy=10)
    g.path(spline([(151, 283), (190, 289), (229, 283)]), None, border, 5)
    g.path(shape, None, INK, 3)


def near_leg(g, hose, boot, spur=True):
    rod(g, [(192, 226), (166, 256), (160, 276), (166, 304)], [42, 38, 28, 22], hose, cap=0.2)
    g.path(spline([(150, 290, 0), (156, 310), (158, 324), (140, 330), (132, 338), (140, 343, 0), (178, 343, 0), (178, 330),
                   (176, 290, 0), (163, 295)], closed=True), boot, INK, 3)
    g.path(spline([(147, 284, 0), (163, 290), (179, 284, 0), (179, 296, 0), (163, 302), (148, 296, 0)], closed=True),
           GOLD, INK, 2.4)
    g.line([(146, 347), (182, 347)], INK, 7)
    g.line([(147, 347), (181, 347)], STEEL, 3)
    g.path(spline([(150, 345), (158, 322), (176, 345)]), None, STEEL_DARK, 2.4)
    if spur:
        g.line([(179, 336), (192, 334)], GOLD, 4)


def torso(g, colour, low=252):
    """The tunic of a rider: chest and short skirt over the saddle."""
    shape = spline([(168, 136, 0), (150, 146), (152, 178), (158, 204, 0), (146, 228), (140, 246, 0), (166, low + 4),
                    (196, low + 2), (226, low - 8, 0), (218, 224), (206, 204, 0), (214, 176), (212, 146), (194, 136, 0)],
                   closed=True)
    g.path(shape, colour, INK, 3)
    return shape


def girdle(g, colour=GOLD):
    g.path(spline([(156, 200, 0), (182, 206), (208, 200, 0), (209, 211, 0), (182, 218), (155, 211, 0)], closed=True),
           colour, INK, 2.6)


def flying_cloak(g, colour, dark):
    shape = spline([(196, 142), (232, 156), (256, 186), (280, 204, 0), (268, 216), (272, 236, 0), (246, 230), (214, 236),
                    (196, 200)], closed=True)
    g.path(shape, colour, INK, 3)
    for points in ([(214, 160), (238, 190), (264, 222)], [(206, 172), (224, 204), (244, 226)]):
        g.path(spline(points), None, dark, 2.6)


def rein(g, harness, hand=(148, 206)):
    points = [(66, 236), (96, 240), (126, 226), hand]
    g.path(spline(points), None, INK, 6)
    g.path(spline(points), None, harness, 3)


def rein_arm(g, colour, cuff=GOLD_LIGHT):
    rod(g, [(160, 156), (140, 184), (138, 198), (148, 206)], [30, 30, 22, 16], colour)
    g.path(spline([(130, 194), (140, 192), (150, 186)]), None, cuff, 3)
    fist(g, 146, 208, 100, 0.8, flip=True)


def rider_head(g, look=-1):
    return g.at(180, 92, 0.94)


def rider_oros(g):
    """White horse to the right, the coin held out over its head."""
    turf(g, 36, 262)
    with facing(g, True):
        flying_cloak(g, BLUE, BLUE_DARK)
        horse(g, "white", RED)
        cloth(g, BLUE_DARK, lambda x, y: (g.circle(x, y, 5.5, GOLD, GOLD_DEEP, 1.4), g.circle(x, y, 2, RED)))
        near_leg(g, GOLD, WOOD)
        with rider_head(g):
            hair_back(g, HAIR_BROWN, 34, 36)
        g.poly([(169, 118), (168, 146), (194, 146), (193, 118)], SKIN_SHADE, INK, 2.4)
        tunic = torso(g, RED)
        g.scatter(tunic, 20, 18, 7, lambda x, y: mark(g, x, y, 5.4, GOLD_LIGHT), ox=4, oy=14)
        g.path(tunic, None, INK, 3)
        girdle(g)
        rein(g, RED)
        rein_arm(g, BLUE)
        rod(g, [(164, 154), (136, 170), (116, 160), (100, 138)], [30, 32, 24, 16], BLUE)
        g.path(spline([(104, 160), (114, 150), (126, 148)]), None, GOLD_LIGHT, 3)
        g.path(spline([(164, 136, 0), (148, 148), (164, 158), (186, 152), (206, 156), (214, 146), (198, 136, 0)], closed=True),
               WHITE, INK, 2.6)
        pips.coin(g, 88, 92, 1.08)
        palm_up(g, 93, 130, -14, 0.88)
        with rider_head(g):
            face(g, -1, brow=HAIR_BROWN)
            fringe(g, HAIR_BROWN, -20, "#3f2310")
            moustache(g, HAIR_BROWN, -1)
            feather(g, [(12, -44), (30, -62), (56, -62), (74, -46)], GOLD_LIGHT, GOLD_DARK, 22)
            g.path(spline([(-34, -28), (-30, -50), (0, -60), (30, -50), (36, -28), (0, -36)], closed=True), BLUE, INK, 3.2)
            g.path(spline([(-42, -22), (-36, -36), (0, -40), (36, -36), (44, -22), (0, -31)], closed=True), RED, INK, 3)
            g.circle(14, -40, 6, GOLD_LIGHT, INK, 2.4)


def rider_copas(g):
    """Bay horse to the left, the cup lifted behind the rein hand; turban and long sleeves."""
    turf(g, 40, 262)
    with g.group("translate(-9,0)"):
        copas_mounted(g)


def copas_mounted(g):
    horse(g, "bay", GREEN)
    cloth(g, RED, lambda x, y: (mark(g, x, y, 7, GOLD_LIGHT), mark(g, x, y, 3, RED_DARK)))
    near_leg(g, WHITE, RED_DARK)
    g.poly([(169, 118), (168, 146), (194, 146), (193, 118)], SKIN_SHADE, INK, 2.4)
    tunic = torso(g, GREEN)
    g.hatch(tunic, 68, 14, GREEN_LIGHT, 2.6, inset=0)
    g.path(tunic, None, INK, 3)
    g.path(spline([(176, 140, 0), (172, 176), (174, 204, 0), (190, 204, 0), (191, 176), (188, 140, 0)], closed=True), GOLD_LIGHT,
           INK, 2.4)
    for y in (158, 172, 186, 198):
        g.circle(182, y, 3, RED, INK, 1.4)
    girdle(g, RED)
    rein(g, GREEN)
    rein_arm(g, RED)
    sleeve = spline([(204, 146), (232, 168), (246, 162), (252, 150, 0), (266, 158, 0), (262, 184), (268, 224, 0), (250, 214),
                     (240, 226, 0), (230, 200), (210, 186)], closed=True)
    g.path(sleeve, RED, INK, 3)
    g.path(spline([(251, 153), (258, 158), (265, 160)]), None, GOLD_LIGHT, 4)
    g.path(spline([(240, 222), (248, 212), (266, 220)]), None, GOLD_LIGHT, 3)
    g.path(spline([(224, 170), (238, 180), (250, 178)]), None, RED_DARK, 2)
    g.path(spline([(160, 138, 0), (146, 150), (164, 160), (182, 154), (202, 160), (216, 150), (202, 138, 0)], closed=True),
           GOLD, INK, 2.6)
    pips.cup(g, 254, 94, 0.98)
    palm_up(g, 255, 142, 8, 0.86)
    with rider_head(g):
        face(g, -1, brow=HAIR_BLACK)
        side_locks(g, HAIR_BLACK, "#5a4650", 16)
        beard(g, HAIR_BLACK, "#5a4650", "short", -1)
        turban = spline([(-34, -14), (-42, -34), (-24, -58), (6, -64), (34, -52), (40, -30), (32, -14), (0, -24)], closed=True)
        g.path(turban, WHITE, INK, 3.2)
        for points in ([(-36, -20), (-10, -34), (24, -58)], [(-38, -38), (-8, -48), (10, -62)], [(-10, -24), (20, -36), (38, -40)]):
            g.path(spline(points), None, HAIR_GREY, 2.4)
        g.path(spline([(-16, -44, 0), (-10, -72), (0, -80, 0), (4, -60), (-4, -42, 0)], closed=True), RED, INK, 2.4)
        g.circle(-10, -40, 7, GOLD_LIGHT, INK, 2.4)
        g.circle(-10, -40, 3, GREEN)


def rearing(g, coat, harness, trim=GOLD_LIGHT):
    """The levade: the same trunk tipped back over the hind legs."""
    body, far, mane, horn = COATS[coat]
    # far hind leg and tail stand in upright coordinates
    tail = spline([(262, 286), (278, 296), (284, 326), (272, 352), (282, 384, 0), (258, 376), (250, 344), (254, 306)],
                  closed=True)
    g.path(tail, mane, INK, 3)
    g.path(spline([(266, 294), (274, 324), (264, 366)]), None, GOLD_DEEP if coat == "bay" else "#5d5666", 1.6)
    shape = limb([(226, 320), (204, 338), (214, 356), (200, 380)], [54, 34, 20, 15], cap=0)
    g.path(shape, far, INK, 3)
    hoof(g, 198, 388, 6, horn)
    with g.group("rotate(20 244 300)"):
        shape = limb([(122, 286), (90, 296), (72, 318), (86, 338)], [42, 27, 19, 14], cap=0)
        g.path(shape, far, INK, 3)
        hoof(g, 91, 343, -60, horn, 0.92)
        g.path(spline([(90, 162, 0), (84, 138, 0), (98, 142), (104, 160, 0)], closed=True), body, INK, 2.8)
        g.path(spline(BODY, closed=True), body, INK, 3)
        fore = [(140, 300), (116, 322), (106, 334), (114, 350), (120, 362), (108, 370), (98, 352), (88, 334), (92, 316),
                (106, 290)]
        g.path(spline(fore, closed=True), body)
        g.path(spline(fore), None, INK, 3)
        hoof(g, 117, 370, -34, horn, 0.92)
        g.path(spline([(132, 302), (160, 309), (196, 311), (222, 302), (196, 300), (160, 299)], closed=True), far, opacity=0.7)
        mane_locks(g, mane)
        eye_and_nostril(g)
        g.path(spline([(48, 241), (56, 236), (66, 236)]), None, INK, 2)
        bridle(g, harness, trim)
        for points in ([(102, 250), (124, 258), (148, 252)], [(226, 248), (246, 256), (264, 252)]):
            g.path(spline(points), None, INK, 9)
            g.path(spline(points), None, harness, 5.4)
    hind = [(268, 300), (262, 322), (252, 336), (260, 352), (256, 370), (252, 384), (236, 384), (239, 368), (242, 352),
            (226, 338), (210, 318)]
    g.path(spline(hind + [(216, 296), (250, 290)], closed=True), body)
    g.path(spline(hind), None, INK, 3)
    hoof(g, 245, 388, 0, horn)


def rider_espadas(g):
    """Black horse rearing, rider in steel, the sword swung back to strike."""
    turf(g, 40, 262)
    with g.group("translate(-27,6)"):
        rearing(g, "black", RED)
        with g.group("rotate(20 244 300)"):
            cloth(g, BLUE, lambda x, y: mark(g, x, y, 6, WHITE))
        slack = spline([(99, 178), (118, 208), (148, 218), (178, 205)])
        g.path(slack, None, INK, 6)
        g.path(slack, None, RED, 3)
        with g.group("rotate(8 244 300) translate(16,6)"):
            near_leg(g, STEEL, STEEL_DARK)
            shape = spline([(196, 142), (226, 152), (248, 186), (262, 226, 0), (248, 222), (240, 244, 0), (226, 228), (204, 226),
                            (196, 200)], closed=True)
            g.path(shape, RED, INK, 3)
            g.path(spline([(212, 160), (232, 196), (242, 228)]), None, RED_DARK, 2.6)
            g.poly([(169, 118), (168, 146), (194, 146), (193, 118)], SKIN_SHADE, INK, 2.4)
            skirt = torso(g, BLUE)
            g.hatch(skirt, 80, 14, WHITE, 3, inset=0)
            g.path(skirt, None, INK, 3)
            plate = g.linear("plate", [(0, STEEL_DARK), (0.3, STEEL_LIGHT), (0.6, STEEL), (1, "#8796aa")], 0, 0, 1, 0)
            g.path(spline([(168, 136, 0), (150, 146), (150, 178), (157, 206, 0), (182, 214), (207, 206, 0), (215, 176),
                           (212, 146), (194, 136, 0)], closed=True), plate, INK, 3)
            g.path(spline([(176, 150), (172, 180), (178, 210)]), None, STEEL_DARK, 2.2)
            girdle(g, GOLD_DARK)
            rein_arm(g, STEEL, GOLD)
            rod(g, [(206, 154), (232, 162), (242, 148), (238, 124)], [30, 30, 24, 17], STEEL)
            g.path(spline([(230, 140), (240, 142), (250, 138)]), None, GOLD, 3.4)
            g.path(spline([(192, 146), (210, 142), (226, 158, 0), (212, 166), (196, 162)], closed=True), STEEL_LIGHT, INK, 2.6)
            with g.group("translate(237,112) rotate(3)"):
                pips.sword(g, 0, -44, 1.0, grip=RED)
                fist(g, 0, 0, 0, 0.86)
            with rider_head(g):
                face(g, -1, brow=HAIR_BROWN)
                moustache(g, HAIR_BROWN, -1)
                feather(g, [(8, -58), (20, -72), (42, -66), (56, -44), (58, -22)], RED, RED_DARK, 20)
                helm = spline([(-32, -14, 0), (-34, -40), (-16, -60), (10, -64), (32, -48), (37, -18), (38, 22), (26, 30, 0),
                               (24, -6), (18, -18, 0)], closed=True)
                g.path(helm, plate, INK, 3.2)
                g.path(spline([(-33, -16), (-8, -22), (19, -19)]), None, INK, 8)
                g.path(spline([(-32, -16), (-8, -22), (19, -19)]), None, GOLD, 4)
                g.circle(22, -10, 4, GOLD_LIGHT, INK, 2)


def rider_bastos(g):
    """Dapple-grey horse to the right, the club swung forward over its neck."""
    turf(g, 36, 262)
    with facing(g, True):
        horse(g, "grey", WOOD, dapple=True)
        cloth(g, GOLD, lambda x, y: g.path(spline([(x, y - 8, 0), (x + 5, y), (x, y + 8, 0), (x - 5, y)], closed=True), GREEN),
              border=RED)
        near_leg(g, RED, WOOD)
        flying = spline([(198, 144), (230, 152), (244, 184), (262, 208, 0), (244, 214), (240, 232, 0), (220, 218), (200, 200)],
                        closed=True)
        g.path(flying, WOOD, INK, 3)
        g.scatter(flying, 12, 13, 5, lambda x, y: g.line([(x - 1, y - 4), (x + 1, y + 4)], WOOD_DARK, 2), ox=3, oy=6)
        with rider_head(g):
            hair_back(g, HAIR_BLOND, 40, 36)
        g.poly([(169, 118), (168, 146), (194, 146), (193, 118)], SKIN_SHADE, INK, 2.4)
        tunic = torso(g, GREEN)

        def trefoil(x, y):
            for a in (0, 120, 240):
                with g.at(x, y, turn=a):
                    g.circle(0, -3.6, 2.9, GREEN_LIGHT)
        g.scatter(tunic, 20, 18, 7.4, trefoil, ox=4, oy=14)
        g.path(tunic, None, INK, 3)
        girdle(g, WOOD)
        rein(g, WOOD)
        rein_arm(g, RED)
        pips.club(g, 92, 96, 0.98, turn=-32, leaves=False)
        rod(g, [(164, 154), (138, 164), (126, 150), (118, 134)], [30, 30, 24, 16], RED)
        g.path(spline([(114, 148), (124, 142), (134, 138)]), None, GOLD_LIGHT, 3)
        fist(g, 114, 128, -32, 0.9)
        g.path(spline([(162, 136, 0), (146, 148), (154, 162, 0), (166, 152, 0), (176, 166, 0), (186, 154, 0), (198, 166, 0),
                       (206, 154, 0), (218, 158, 0), (212, 144), (198, 136, 0)], closed=True), GOLD, INK, 2.6)
        with rider_head(g):
            face(g, -1, brow=HAIR_BLOND, soft=True)
            fringe(g, HAIR_BLOND, -20, "#a86c1f")
            feather(g, [(20, -36), (36, -56), (58, -62), (78, -50)], RED, RED_DARK, 18)
            cap = spline([(-54, -22, 0), (-30, -40), (-10, -60), (20, -60), (38, -40), (44, -20), (20, -34), (-10, -30)],
                         closed=True)
            g.path(cap, GREEN, INK, 3.2)
            g.path(spline([(-52, -22), (-14, -31), (20, -35), (43, -21)]), None, INK, 8)
            g.path(spline([(-51, -22.5), (-14, -31.5), (20, -35.5), (42, -22)]), None, GOLD, 4)


RIDERS = {"oros": rider_oros, "copas": rider_copas, "espadas": rider_espadas, "bastos": rider_bastos}
