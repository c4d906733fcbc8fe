#!/usr/bin/python3
"""Writes roof-layout.json: the example layout of a 72 m x 36 m double-slope factory roof.

The south slope (y 0..18000) is laid in YX35-125-750 sheets split once along their length
(two sheets lapped 200 over each other form a merge group); the north slope (y 18000..36000)
in single YX51-380-760 sheets. Pipes and skylights cut holes into the sheets they pass
through; the last two sheets at the east gable form a corner group. Purlins, rafters, side
laps, ridge and zone division lines, eave, ridge and gable flashings, a canopy of lite panels
and the openings complete it. Run it again after changing it: the JSON is checked in.
"""
import json
import math
import os

LENGTH = 72000.0
SOUTH_RIDGE = 18000.0
NORTH_EAVE = 36000.0
SOUTH_WIDTH = 750.0
NORTH_WIDTH = 760.0
SPLIT_Y = 10100.0  # the lower sheet of a south column ends here
LAP = 200.0        # the upper sheet starts this much below it

PIPES = [(4, 6000.0, 150.0), (17, 3500.0, 100.0), (40, 14000.0, 150.0), (71, 7200.0, 125.0)]  # column, y, radius
SKYLIGHTS = [(10, 4500.0), (30, 4500.0), (50, 4500.0), (70, 13000.0)]  # south column, centre y (500 x 1500)
NORTH_VENT = (60, 27000.0)  # north column holding the polygonal vent


def vertex(x, y, bulge=0.0):
    v = {"x": round(x, 3), "y": round(y, 3)}
    if bulge:
        v["bulge"] = bulge
    return v


def rectangle(x0, y0, x1, y1):
    return [vertex(x0, y0), vertex(x1, y0), vertex(x1, y1), vertex(x0, y1)]


def circle_loop(cx, cy, r):
    # Four quarter arcs: bulge tan(90° / 4).
    b = math.tan(math.pi / 8)
    return [vertex(cx + r, cy, b), vertex(cx, cy + r, b), vertex(cx - r, cy, b), vertex(cx, cy - r, b)]


def vent_outline(cx, cy):
    return [vertex(cx - 200, cy - 250), vertex(cx + 200, cy - 250), vertex(cx + 200, cy + 50),
            vertex(cx, cy + 250), vertex(cx - 200, cy + 50)]


def basic_info(profile, thickness, width, unique, slope, direction, series):
    return {
        "productSeries": series, "panelName": "屋面板", "banLeiXing": profile, "roofPanelHand": 0,
        "roofPanelXingShi": 1, "thickness": thickness, "standardWidth": width, "innerColor": "海蓝",
        "outColor": "灰白", "isPositivePressure": True, "installationPosition": 1, "contractNum": "HT-2026-118",
        "directionType": 1, "lengthDirection": direction, "textXDirection": [1, 0],
        "slopeInputRaw": "5%", "slopeAngleRadians": slope, "anchorModeLength": 1, "anchorModeWidth": 1,
        "panelParameters": [{"名称": "有效宽度", "值": width}], "primaryAxis": "A", "secondaryAxisStart": "1",
        "secondaryAxisEnd": "9", "constructionArea": "1# 厂房屋面", "materialCode": "M-" + profile,
        "uniqueNum": unique, "layoutConfigId": "LC-2026-11", "materialData": {"基板": "镀铝锌 AZ150", "涂层": "PE"},
    }


def numbering(number, sequence):
    return {"isNumbered": True, "finalDisplayNumber": number, "sequence": sequence, "customPrefix_1": "WM",
            "shapeSuffix": "", "drawingNumSuffix": "", "mergeSuffix": "", "customSuffix": ""}


def hatch(angle):
    return {"patternType": 1, "patternName": "ANSI31", "patScale": 2400, "patternAngle": angle, "patFillColor": 8}


def labels(number, bottom):
    return [
        {"type": 0, "text": number, "height": 200, "predefinedPosition": 0, "directionMode": "perpendicular",
         "layer": "QX-板材文字"},
        {"type": 3, "text": bottom, "height": 120, "predefinedPosition": 20, "layer": "QX-板材文字"},
    ]


def holes_in(x0, x1, y0, y1, column, north):
    holes = []
    if not north:
        for c, y, r in PIPES:
            if c == column and y0 < y < y1:
                holes.append(circle_loop(x0 + SOUTH_WIDTH / 2, y, r + 25))
        for c, y in SKYLIGHTS:
            if c == column and y0 < y - 750 and y + 750 < y1:
                cx = x0 + SOUTH_WIDTH / 2
                holes.append(rectangle(cx - 250, y - 750, cx + 250, y + 750))
    elif column == NORTH_VENT[0]:
        holes.append(vent_outline(x0 + NORTH_WIDTH / 2, NORTH_VENT[1]))
    return holes


def panels():
    out = []
    slope = math.atan(0.05)
    columns = int(LENGTH // SOUTH_WIDTH)
    for c in range(columns):
        x0, x1 = c * SOUTH_WIDTH, (c + 1) * SOUTH_WIDTH
        first = len(out)
        for piece, (y0, y1) in enumerate([(0.0, SPLIT_Y), (SPLIT_Y - LAP, SOUTH_RIDGE)]):
            number = "S-%02d-%d" % (c + 1, piece + 1)
            length = y1 - y0
            out.append({
                "layer": "QX-板材",
                "loops": [rectangle(x0, y0, x1, y1)] + holes_in(x0, x1, y0, y1, c, False),
                "labels": labels(number, "YX35-125-750 L=%d" % length),
                "basicInfo": basic_info("YX35-125-750", 0.6, SOUTH_WIDTH, "P-S%03d%d" % (c + 1, piece + 1),
                                        slope, [0, 1], "YX"),
                "numberingInfo": numbering(number, len(out) + 1),
                "hatchInfo": hatch(0),
                "mergeInfo": {"direction": 1, "sequenceNumber": piece + 1, "mergedLength": SOUTH_RIDGE,
                              "mergedWidth": SOUTH_WIDTH, "relatedPanels": [first + (1 - piece)]},
                "accessoryInfo": [{"名称": "自攻螺钉 ST6.3x25", "数量": int(length // 1500 + 1) * 3},
                                  {"名称": "丁基密封胶带", "长度": SOUTH_WIDTH}],
            })
    columns = int(LENGTH // NORTH_WIDTH)
    for c in range(columns):
        x0, x1 = c * NORTH_WIDTH, (c + 1) * NORTH_WIDTH
        number = "N-%02d" % (c + 1)
        out.append({
            "layer": "QX-板材",
            "loops": [rectangle(x0, SOUTH_RIDGE, x1, NORTH_EAVE)] + holes_in(x0, x1, SOUTH_RIDGE, NORTH_EAVE, c, True),
            "labels": labels(number, "YX51-380-760 L=18000"),
            "basicInfo": basic_info("YX51-380-760", 0.8, NORTH_WIDTH, "P-N%03d" % (c + 1), slope, [0, -1], "YX"),
            "numberingInfo": numbering(number, len(out) + 1),
            "hatchInfo": hatch(90),
            "accessoryInfo": [{"名称": "固定支座 GZ-65", "数量": 12}],
        })
    # The two easternmost north sheets wrap the gable corner together.
    a, b = len(out) - 2, len(out) - 1
    for i, (me, other) in enumerate([(a, b), (b, a)]):
        out[me]["shapeInfo"] = {"shapeType": 1, "position": i + 1, "cornerPanelAngle": 90, "ziMuKouType": 0,
                                "relatedPanels": [other]}
    return out


def lite_panels():
    # The canopy over the south door: plain sheets without information blocks.
    return [{"layer": "QX-板材", "loops": [rectangle(30000 + i * 750, -3000, 30750 + i * 750, -200)],
             "pattern": {"type": 1, "name": "ANSI31", "scale": 1600, "angle": 0.7853981633974483, "color": 8}} for i in range(8)]


def layout():
    return {
        "format": "quarvo-layout",
        "version": 1,
        "name": "1# 厂房屋面 (72 m × 36 m 双坡)",
        "layers": [
            {"name": "QX-布置轮廓", "color": 6}, {"name": "QX-板材", "color": 3}, {"name": "QX-板材文字", "color": 2},
            {"name": "QX-节点线", "color": 3}, {"name": "QX-节点边界", "color": 1}, {"name": "QX-搭接线", "color": 6},
            {"name": "QX-结构线", "color": 5}, {"name": "QX-收边线", "color": 30}, {"name": "QX-钢构件", "color": 8},
            {"name": "QX-洞口", "color": 4},
        ],
        "boundary": {"layer": "QX-布置轮廓", "vertices": rectangle(0, 0, LENGTH, NORTH_EAVE),
                     "title": {"text": "1# 厂房屋面布置轮廓", "height": 600, "offset": {"x": 0, "y": -19500}}},
        "panels": panels(),
        "litePanels": lite_panels(),
        "divisionLines": [
            {"layer": "QX-节点线", "start": vertex(0, SOUTH_RIDGE), "end": vertex(LENGTH, SOUTH_RIDGE),
             "indentLeft": 150, "indentRight": 150, "jieDian": {"boundaryLayer": "QX-节点边界", "boundaryColor": 1},
             "nodeBasicInfo": {"编号": "J-01", "节点类型": "屋脊"}},
            {"layer": "QX-节点线", "start": vertex(36000, 0), "end": vertex(36000, NORTH_EAVE),
             "indentLeft": 50, "indentRight": 50, "nodeBasicInfo": {"编号": "J-02", "节点类型": "伸缩缝"}},
        ],
        "overlapLines": [
            {"layer": "QX-搭接线", "start": vertex(0, SPLIT_Y - LAP / 2), "end": vertex(LENGTH, SPLIT_Y - LAP / 2),
             "overlapLeft": LAP / 2, "overlapRight": LAP / 2, "direction": "rightOverLeft",
             "drawOptions": ["centerLine", "boundary", "direction"],
             "nodeBasicInfo": {"编号": "DJ-01", "搭接长度": LAP}},
        ],
        "structuralLines": [
            {"layer": "QX-结构线", "start": vertex(0, y), "end": vertex(LENGTH, y), "memberType": "beam",
             "memberWidthLeft": 50, "memberWidthRight": 50, "indentLeft": 20, "indentRight": 20,
             "nodeBasicInfo": {"编号": "LT-%02d" % (i + 1), "规格": "C180×70×20×2.5"}}
            for i, y in enumerate([750.0 + 1500.0 * k for k in range(24)])
        ],
        "flashingLines": [
            {"layer": "QX-收边线", "vertices": [vertex(0, 0), vertex(LENGTH, 0)], "indentLeft": 150,
             "indentRight": 150, "drawOptions": ["centerLine", "boundaryLine", "textLabel"], "label": {"height": 300},
             "shouBianInfo": {"baseInfo": {"shouBianNumber": "SB-01", "shouBianName": "檐口包边"}}},
            {"layer": "QX-收边线", "vertices": [vertex(LENGTH, NORTH_EAVE), vertex(0, NORTH_EAVE)], "indentLeft": 150,
             "indentRight": 150, "drawOptions": ["centerLine", "boundaryLine", "textLabel"], "label": {"height": 300},
             "shouBianInfo": {"baseInfo": {"shouBianNumber": "SB-02", "shouBianName": "檐口包边"}}},
            {"layer": "QX-收边线", "vertices": [vertex(0, SOUTH_RIDGE), vertex(LENGTH, SOUTH_RIDGE)], "indentLeft": 250,
             "indentRight": 250, "drawOptions": ["centerLine", "boundaryLine", "textLabel"], "label": {"height": 300},
             "shouBianInfo": {"baseInfo": {"shouBianNumber": "SB-03", "shouBianName": "屋脊盖板"}}},
            {"layer": "QX-收边线", "vertices": [vertex(0, NORTH_EAVE), vertex(0, 0)], "indentLeft": 100,
             "indentRight": 100, "drawOptions": ["centerLine", "boundaryLine", "textLabel"], "label": {"height": 300},
             "shouBianInfo": {"baseInfo": {"shouBianNumber": "SB-04", "shouBianName": "山墙包角"}}},
            {"layer": "QX-收边线", "vertices": [vertex(LENGTH, 0), vertex(LENGTH, NORTH_EAVE)], "indentLeft": 100,
             "indentRight": 100, "drawOptions": ["centerLine", "boundaryLine", "textLabel"], "label": {"height": 300},
             "shouBianInfo": {"baseInfo": {"shouBianNumber": "SB-05", "shouBianName": "山墙包角"}}},
        ],
        "steelMembers": [
            {"layer": "QX-钢构件", "start": vertex(x, 0), "end": vertex(x, NORTH_EAVE), "kind": "beam", "width": 300}
            for x in [9000.0 * k for k in range(9)]
        ],
        "circleOpenings": [
            {"layer": "QX-洞口", "center": vertex(c * SOUTH_WIDTH + SOUTH_WIDTH / 2, y), "radius": r,
             "title": {"text": "管道孔 D%d" % (2 * r), "height": 150}}
            for c, y, r in PIPES
        ],
        "rectOpenings": [
            {"layer": "QX-洞口", "anchor": vertex(c * SOUTH_WIDTH + SOUTH_WIDTH / 2, y), "anchorPosition": "center",
             "width": 500, "height": 1500, "title": {"text": "采光窗 %d" % (i + 1), "height": 150}}
            for i, (c, y) in enumerate(SKYLIGHTS)
        ],
        "polyOpenings": [
            {"layer": "QX-洞口", "vertices": vent_outline(NORTH_VENT[0] * NORTH_WIDTH + NORTH_WIDTH / 2, NORTH_VENT[1]),
             "title": {"text": "排风帽 P1", "height": 150}},
        ],
    }


if __name__ == "__main__":
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "roof-layout.json")
    with open(path, "w", encoding="utf-8") as out:
        json.dump(layout(), out, ensure_ascii=False, separators=(",", ":"))
        out.write("\n")
