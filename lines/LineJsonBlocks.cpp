// LineJsonBlocks: the three blocks in their filed order.
#include "LineJsonBlocks.h"

#include "data/IDataIO.h"

void LineJsonBlocks::Write(IDataIO& io) const
{
    io.Write(nodeBasic);
    io.Write(shouBian);
    io.Write(accessory);
}

void LineJsonBlocks::Read(IDataIO& io)
{
    io.Read(nodeBasic);
    io.Read(shouBian);
    io.Read(accessory);
}
