// LineJsonBlocks: the three JSON information blocks of a layout line, "节点基本信息",
// "收边信息" and "辅配件信息". They are the layout application's business data: the line
// keeps them as opaque text and files them, uncounted, right after its typed-array record.
#pragma once

#include "AcString.h"

class IDataIO;

class LineJsonBlocks {
public:
    AcString nodeBasic;
    AcString shouBian;
    AcString accessory;

    void Write(IDataIO& io) const;
    void Read(IDataIO& io);
};
