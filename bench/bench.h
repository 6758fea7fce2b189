// What is measured. Each prints its figures, with the aim beside them, on standard output.
#pragma once

namespace ovl::bench {

class Site;

void MeasureCodecs();
void MeasureHistory(Site& site);
void MeasureRegisterPick(Site& site);
void MeasureRefresh(Site& site);
void MeasureTransfers(Site& site);
void MeasureStart(Site& site);

// The other side of MeasureStart, in a process of its own: starts the program, says when it is painted, and
// ends.
int PaintOnce(int argc, char** argv);

}  // namespace ovl::bench
