#pragma once

#include <QByteArray>

#include "study/Tafelblatt.h"

class QPagedPaintDevice;

namespace rippenscheibe {

// The page of a design table as a PDF on A4: head, sketch of the wall, table, signs, fixed inputs. A table
// with many columns is set in parts below each other, and what does not fit goes on further pages.
QByteArray tafelPdf(const Tafelblatt& blatt, const Wand& wand);

// The same on a printer.
void druckeTafel(QPagedPaintDevice& drucker, const Tafelblatt& blatt, const Wand& wand);

}  // namespace rippenscheibe
