#include <dtkhddvd.h>

/* A program in plain C sees everything that it needs. */
DFBResult draw_something(DTKHDDVD *toolkit, DTKHDDVDPen *pen);

DFBResult draw_something(DTKHDDVD *toolkit, DTKHDDVDPen *pen)
{
    DFBRectangle box;
    box.x = batch_n_blits;
    box.y = 0;
    box.w = DTKHDDVD_BATCH_SIZE;
    box.h = clear_time_start;
    toolkit->SetPen(toolkit, pen);
    return toolkit->Ellipse(toolkit, &box, DTKHDDVD_STROKE | DTKHDDVD_FILL);
}
