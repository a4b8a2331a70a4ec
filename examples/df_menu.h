/* What the parts of df_menu share: df_menu.c moves the highlight, and df_menu_draw.c draws. */
#ifndef DF_MENU_H
#define DF_MENU_H

#include "screen.h"

enum { width = 1280, height = 720, button_count = 4, chapter_count = 7, tile = 16, pictured_frame = 58 };
enum { button_width = 220, button_height = 110, button_top = 566, chapter_width = 200, chapter_height = 120, chapter_top = 330 };

/* One highlight for both rows, which moves a part of the way to its place in each frame. */
typedef struct Menu {
    DTKHDDVD *toolkit;
    DTKHDDVDPen *frame_pen, *icon_pen;
    IDirectFBSurface *stripes;
    int selected, is_on_chapters, frame, idle_frames;
    double highlight_x, scroll, slide;
} Menu;

static const DFBColor film = {0xFF, 0x12, 0x1A, 0x2C};

/* ---- df_menu_draw.c ---- */

void draw_film(const Menu *menu);
int chapter_left(const Menu *menu, int chapter);
void draw_chapter(const Menu *menu, int chapter);
int button_left(int button);
void draw_buttons(const Menu *menu);
void draw_highlight(const Menu *menu);
int target_of_highlight(const Menu *menu);

#endif
