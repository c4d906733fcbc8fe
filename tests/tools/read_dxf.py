"""Reads a DXF file with ezdxf, an independent reader, and prints what it found as JSON:
the audit's errors, the entities of model space (type, layer, colour), their counts, the
layers and the texts. Run with the system's python3, which has Debian's python3-ezdxf."""
import collections
import json
import sys

import ezdxf

doc = ezdxf.readfile(sys.argv[1])
auditor = doc.audit()
msp = doc.modelspace()
found = {
    "errors": [error.message for error in auditor.errors],
    "counts": collections.Counter(entity.dxftype() for entity in msp),
    "entities": [[entity.dxftype(), entity.dxf.layer, entity.dxf.color] for entity in msp],
    "layers": sorted(layer.dxf.name for layer in doc.layers),
    "texts": [text.dxf.text for text in msp.query("TEXT")],
    "text_heights": [text.dxf.height for text in msp.query("TEXT")],
    "bulges": [[point[4] for point in line.get_points()] for line in msp.query("LWPOLYLINE")],
}
print(json.dumps(found, ensure_ascii=False))
