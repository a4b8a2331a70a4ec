/*
 * The menu of a disc: a row of chapters and a bar of buttons that slide in over the film, and a highlight that travels. The
 * arrows and Return move it; left alone, it moves by itself. Escape ends it.
 *
 *     cc df_menu*.c screen.c -o df_menu $(pkg-config --cflags --libs dtkhddvd libpng) -lm
 *     ./df_menu
 *     ./df_menu --png menu.png
 */
#include <math.h>

#include "df_menu.h"

static void move(Menu *menu)
{
    const double end = chapter_left(menu, menu->selected) + chapter_width - (width - 60);

    ++menu->frame;
    menu->slide *= 0.8;
    if (menu->is_on_chapters)
        menu->scroll += 0.25 * (end > 0 ? end : chapter_left(menu, menu->selected) < 60 ? chapter_left(menu, menu->selected) - 60 : 0);
    menu->highlight_x += 0.3 * (target_of_highlight(menu) - menu->highlight_x);
}

static void select_next(Menu *menu, int step)
{
    const int count = menu->is_on_chapters ? chapter_count : button_count;

    menu->selected = (menu->selected + step + count) % count;
}

static void change_row(Menu *menu)
{
    menu->is_on_chapters = !menu->is_on_chapters;
    menu->selected = 0;
}

static void press_key(Menu *menu, DFBInputDeviceKeySymbol key)
{
    menu->idle_frames = -300;
    if (key == DIKS_CURSOR_LEFT || key == DIKS_CURSOR_RIGHT)
        select_next(menu, key == DIKS_CURSOR_LEFT ? -1 : 1);
    if (key == DIKS_CURSOR_UP || key == DIKS_CURSOR_DOWN || key == DIKS_RETURN)
        change_row(menu);
}

/* Twice around each row in turn, so that everything is seen. */
static void move_by_itself(Menu *menu)
{
    if (++menu->idle_frames < 24)
        return;
    menu->idle_frames = 0;
    if (menu->selected + 1 == (menu->is_on_chapters ? chapter_count : button_count))
        change_row(menu);
    else
        select_next(menu, 1);
}

/* ---- the program ---- */

static void draw_frame(Screen *screen, Menu *menu)
{
    int i;

    check(screen->surface->Clear(screen->surface, film.r, film.g, film.b, film.a));
    draw_film(menu);
    for (i = 0; i < chapter_count; ++i)
        draw_chapter(menu, i);
    draw_buttons(menu);
    draw_highlight(menu);
}

static void advance(Menu *menu)
{
    move_by_itself(menu);
    move(menu);
}

static void run(Screen *screen, Menu *menu)
{
    DFBInputEvent event;

    while (screen->png && menu->frame < pictured_frame)
        advance(menu);
    while (!screen->has_ended) {
        draw_frame(screen, menu);
        screen_show(screen);
        advance(menu);
        if (screen_next_event(screen, 33, &event) && event.type == DIET_KEYPRESS)
            press_key(menu, event.key_symbol);
    }
}

static void create_stripes(Menu *menu, IDirectFB *dfb)
{
    const DFBSurfaceDescription description = {.flags = DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT,
                                               .width = tile, .height = tile, .pixelformat = DSPF_ARGB};

    check(dfb->CreateSurface(dfb, &description, &menu->stripes));
    check(menu->stripes->Clear(menu->stripes, 0xF0, 0xF4, 0xF8, 0xFF));
    check(menu->stripes->SetColor(menu->stripes, 0xA8, 0xB8, 0xC8, 0xFF));
    check(menu->stripes->FillRectangle(menu->stripes, 0, 0, tile, tile / 2));
}

static void open_menu(Menu *menu, const Screen *screen)
{
    const DTKHDDVDPenShape frame = {-4, -4, 4, -4, 4, 4, -4, 4}, icon = {-2, -2, 2, -2, 2, 2, -2, 2};

    create_stripes(menu, screen->dfb);
    check(CreateDrawingToolkit_HDDVD(screen->dfb, screen->surface, 1, &menu->toolkit));
    check(menu->toolkit->CreatePen(menu->toolkit, &frame, &menu->frame_pen));
    check(menu->toolkit->CreatePen(menu->toolkit, &icon, &menu->icon_pen));
    menu->slide = 200;
    menu->highlight_x = button_left(0);
}

static void close_menu(Menu *menu)
{
    menu->frame_pen->Release(menu->frame_pen);
    menu->icon_pen->Release(menu->icon_pen);
    menu->toolkit->Release(menu->toolkit);
    menu->stripes->Release(menu->stripes);
}

int main(int argc, char **argv)
{
    static Menu menu;
    Screen screen;

    screen_open(&screen, argc, argv, "Shows the menu of a disc.", width, height);
    open_menu(&menu, &screen);
    run(&screen, &menu);
    close_menu(&menu);
    screen_close(&screen);
    return 0;
}
