// The C-level value types of the host's utility layer.
#pragma once

#include "adesk.h"

using ads_real = double;
using ads_point = ads_real[3];
using ads_name = Adesk::LongPtr[2];
using ads_matrix = ads_real[4][4];

// A binary chunk: a length and the bytes (the length is a short, so at most 32767 bytes).
struct ads_binary {
    short clen;
    char* buf;
};

// Result buffer: a typed value in a linked list, as the editor's C services take them.
union ads_u_val {
    ads_real rreal;
    ads_real rpoint[3];
    short rint;
    ACHAR* rstring;
    Adesk::LongPtr rlname[2];
    Adesk::Int32 rlong;
    Adesk::Int64 mnInt64;
    ads_binary rbinary;
};

struct resbuf {
    resbuf* rbnext;
    short restype;
    ads_u_val resval;
};

// Result type codes used with resbuf (the long-standing numbers).
constexpr short RTSHORT = 5003;
constexpr short RT3DPOINT = 5009;
constexpr short RTENAME = 5006;
constexpr short RTSTR = 5005;
constexpr short RTREAL = 5001;
constexpr short RTLONG = 5010;
