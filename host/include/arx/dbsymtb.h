// The symbol tables and their records: blocks, layers, linetypes, text and dimension styles.
#pragma once

#include "AcDbBlockTable.h"
#include "AcDbBlockTableRecord.h"
#include "AcDbBlockTableRecordIterator.h"
#include "AcDbDimStyleTable.h"
#include "AcDbDimStyleTableRecord.h"
#include "AcDbLayerTable.h"
#include "AcDbLayerTableRecord.h"
#include "AcDbLinetypeTable.h"
#include "AcDbLinetypeTableRecord.h"
#include "AcDbSymbolTable.h"
#include "AcDbSymbolTableIterator.h"
#include "AcDbSymbolTableRecord.h"
#include "AcDbTextStyleTable.h"
#include "AcDbTextStyleTableRecord.h"
