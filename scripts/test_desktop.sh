#!/usr/bin/env bash
# Uses the gallery's window as a person does: real mouse and keyboard events on an X screen of its own, and looks at the
# screen's pixels. Pictures stay in build/desktop/. With TAVLON_BIN=FOLDER the programs there are used, nothing is built.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh

if [ -z "${TAVLON_SCREEN_READY:-}" ]; then
    install_packages xvfb xauth xdotool imagemagick g++ libx11-dev
    if [ -z "${TAVLON_BIN:-}" ]; then
        install_packages "${native_packages[@]}"
        build release -- tavlon_gallery
    fi
    # Larger than the largest window below; it stays as it is while no program is connected.
    TAVLON_SCREEN_READY=1 exec xvfb-run -a -s "-screen 0 2700x1600x24 -noreset" scripts/test_desktop.sh
fi
unset TAVLON_DISPLAY TAVLON_SCREEN WAYLAND_DISPLAY
export SDL_VIDEODRIVER=x11

gallery=${TAVLON_BIN:-$PWD/build/release/bin}/tavlon_gallery
shots=$PWD/build/desktop
limit=15   # seconds that anything may take
strip=24   # height of the tab strip
active='#0054A6' # the colour of the chosen tab
rm -rf "$shots"
mkdir -p "$shots"
g++ -O1 -o "$shots/close_window" tests/desktop/close_window.cpp -lX11

pid="" window="" left=0 top=0 step="" begun=0

milliseconds() { date +%s%3N; }
begin() { step=$1 begun=$(milliseconds); }
holds() { printf '%-10s %s (%d ms)\n' "$step" "$1" $(($(milliseconds) - begun)); }

fail() {
    capture 2700x1600+0+0 "$shots/failed.png"
    echo "$step: FAILED: $1; see $shots/failed.png" >&2
    exit 1
}

leave() {
    [ -z "$pid" ] || kill "$pid" 2>/dev/null || true
    rm -f "$shots/close_window"
}
trap leave EXIT

# eventually WHAT COMMAND...: until the command succeeds; WHAT is told when it does not in time.
eventually() {
    local what=$1 end=$(($(milliseconds) + limit * 1000))
    shift
    until "$@"; do
        [ "$(milliseconds)" -lt "$end" ] || fail "$what"
        sleep 0.01
    done
}

# --- Looking. Parts are WxH+X+Y of the page; Y is negative in the tab strip.

capture() { timeout 10 import -silent -window root -crop "$1" +repage -depth 8 "$2"; }
on_screen() {
    local size=${1%%+*} at=${1#*+}
    echo "$size+$((left + ${at%+*}))+$((top + strip + ${at#*+}))"
}
# A checksum of pixels: seen PART on the screen, drawn FILE PART in a picture.
seen() { capture "$(on_screen "$1")" rgb:- | cksum; }
drawn() { /usr/bin/convert "$1" -crop "$2" +repage -depth 8 rgb:- | cksum; }
colour() { capture "$(on_screen "1x1+$1+$2")" txt:- | grep -o '#[0-9A-F]\{6\}'; }

is() { [ "$(seen "$1")" = "$2" ]; }
is_not() { ! is "$@"; }
rests() { is "$1" "$(seen "$1")"; }
is_coloured() { [ "$(colour "$1" "$2")" = "$3" ]; }
# keep NAME [PART]: a picture among the artefacts; shot NAME: once nothing moves.
keep() { capture "$(on_screen "${2:-800x624+0+-24}")" "$shots/$1.png"; }
shot() {
    eventually "the picture does not come to rest" rests "$whole"
    keep "$1"
}

# --- Doing. Positions are those of the page, as in the gallery's scripts.

# The jump to the neighbouring pixel is none of a mouse; the last step is, and makes all the events of one.
point_at() { xdotool mousemove $((left + $1 - 1)) $((top + strip + $2)) mousemove_relative 1 0; }
click() { point_at "$1" "$2" && xdotool click "${3:-1}"; }
double_click() { point_at "$1" "$2" && xdotool click --repeat 2 --delay 40 1; }
tab() { click $(($1 * 57 + 28)) -12; }  # the first is 0
park() { xdotool mousemove 2699 1599; }
# drag X Y X2 Y2: in ten steps, as a hand does.
drag() {
    local n moves=()
    for n in 1 2 3 4 5 6 7 8 9 10; do
        moves+=(mousemove $((left + $1 + ($3 - $1) * n / 10 - 1)) $((top + strip + $2 + ($4 - $2) * n / 10))
            mousemove_relative 1 0 sleep 0.01)
    done
    point_at "$1" "$2"
    xdotool mousedown 1 "${moves[@]}" mouseup 1
}

# --- The program.

# The first window is soon replaced by another that can be drawn on faster: not to be relied on before there is a picture.
find_window() {
    local X Y WIDTH HEIGHT SCREEN WINDOW place
    kill -0 "$pid" 2>/dev/null || fail "the gallery has ended"
    window=$(xdotool search --onlyvisible --name '^Tavlon.' 2>/dev/null) || return 1
    place=$(xdotool getwindowgeometry --shell "$window" 2>/dev/null) || return 1
    eval "$place"
    left=$X top=$Y
    [ "$WIDTH"x"$HEIGHT" = 800x624 ] || return 1
    is_coloured 6 -18 "$active"
}
open_gallery() {
    park
    "$gallery" "$@" &
    pid=$!
    eventually "no window of 800 by 624 with the first page" find_window
}
has_ended() { ! kill -0 "$pid" 2>/dev/null; }
close_gallery() {
    local asked status=0
    asked=$(milliseconds)
    "$shots/close_window" "$window"
    eventually "the window was closed, the program goes on" has_ended
    [ $(($(milliseconds) - asked)) -le 2000 ] || fail "the end took $(($(milliseconds) - asked)) ms"
    wait "$pid" || status=$?
    pid=""
    [ $status = 0 ] || fail "exit code $status"
}

chart=800x530+0+0 whole=800x600+0+0

begin arguments
refuses() {
    local status=0
    "$gallery" "$@" >"$shots/out.txt" 2>"$shots/err.txt" || status=$?
    [ $status = 2 ] || fail "$*: exit code $status"
    [ ! -s "$shots/out.txt" ] || fail "$*: something on stdout"
    grep -q '^usage: tavlon_gallery' "$shots/err.txt" || fail "$*: no usage on stderr"
}
refuses --nonsense
refuses --live 241
refuses --live --live
refuses --size 800x600
refuses --render
refuses --render "$shots" --page none
rm "$shots/out.txt" "$shots/err.txt"
holds "six wrong ones are refused with the usage"

begin pages
mapfile -t pages < <("$gallery" --render "$shots/expected" | xargs -n 1 basename -s .png)
[ ${#pages[@]} = 14 ] || fail "${#pages[@]} pages drawn"
[ "$(for page in "${pages[@]}"; do cksum <"$shots/expected/$page.png"; done | sort -u | wc -l)" = 14 ] || fail "pages look the same"
expected() { drawn "$shots/expected/$1.png" "${2:-$whole}"; }
open_gallery
eventually "the first page is not as drawn off the screen" is "$whole" "$(expected overview)"
for n in 1 2 3 4 5 6 7 8 9 10 11 12 13 0; do
    tab $n
    eventually "page ${pages[n]} is not as drawn off the screen" is "$whole" "$(expected "${pages[n]}")"
    eventually "tab $n is not marked" is_coloured $((n * 57 + 6)) -18 "$active"
    keep "page_${pages[n]}"
done
close_gallery
holds "14 tabs clicked, each page pixel by pixel as drawn off the screen"

begin zoom
axes=800x30+0+505
open_gallery
tab 1
eventually "page radar" is "$whole" "$(expected radar)"
point_at 400 300
eventually "no cross at the pointer" is_not "$chart" "$(expected radar "$chart")"
shot zoom_0_all
all=$(seen "$whole") all_axes=$(seen "$axes")
drag 300 250 520 380
eventually "the axis has not changed" is_not "$axes" "$all_axes"
shot zoom_1_band
band=$(seen "$whole")
click 400 300 3
eventually "no menu" is_not 40x80+405+305 "$(drawn "$shots/zoom_1_band.png" 40x80+405+329)"
shot zoom_2_menu
click 440 312
point_at 400 300
eventually "the menu's first entry does not bring the first picture back" is "$whole" "$all"
close_gallery
holds "a band dragged on the value radar; the menu shows everything again"

begin pick
open_gallery
tab 1
eventually "page radar" is "$whole" "$(expected radar)"
line=350x18+52+22 note=790x16+4+544
point_at 700 130
eventually "no cross at the pointer" is_not "$chart" "$(expected radar "$chart")"
shot pick_0_nothing
nothing=$(seen "$line")
point_at 545 257
eventually "no line for the stock under the pointer" is_not "$line" "$nothing"
shot pick_1_hover
point_at 700 130
eventually "the line stays when the pointer has left the stock" is "$line" "$nothing"
click 545 257
eventually "the note does not name the picked stock" is_not "$note" "$(expected radar "$note")"
shot pick_2_picked
tab 6
names=96x520+0+0
eventually "the pies do not list the stock's industry" is_not "$names" "$(expected pies "$names")"
eventually "the tab for stocks is not marked" is_coloured 56 526 "$active"
shot pick_3_pies
close_gallery
holds "a stock under the pointer is named, a click picks it, the pies show its industry"

begin sector
plot=590x340+130+115
# Of what is drawn there only the balls of marked stocks have much green.
marks() { /usr/bin/convert "$1" -crop "$2" +repage -channel G -separate -threshold 60% -depth 8 gray:- | cksum; }
marks_others() {
    capture "$(on_screen "$plot")" "$shots/plot.ppm"
    [ "$(marks "$shots/plot.ppm" 590x340+0+0)" != "$1" ]
}
open_gallery
tab 4
eventually "page wheel" is "$whole" "$(expected wheel)"
double_click 526 376
eventually "the wheel page has no answer" is_not 790x18+4+578 "$(expected wheel 790x18+4+578)"
shot sector_0_wheel
for n in 1 2; do
    tab $n
    eventually "tab $n is not marked" is_coloured $((n * 57 + 6)) -18 "$active"
    eventually "no other stocks are marked" marks_others "$(marks "$shots/expected/${pages[n]}.png" "$plot")"
    shot "sector_${n}_${pages[n]}"
done
close_gallery
holds "a double click on the wheel marks other stocks in both radars"

begin tip
corner=156x84+640+0
open_gallery
tab 6
eventually "page pies" is "$whole" "$(expected pies)"
slice=$(colour 420 160)
click 500 105
eventually "no tip" is_not "$corner" "$(expected pies "$corner")"
shot tip_0_open
chosen=$(colour 500 105)
[ "$chosen" != "$slice" ] || fail "the slice has not changed its colour"
there=$(seen 45x30+560+350)
words=$(seen 145x70+649+5)
drag 720 20 560 330
eventually "the tip has not left its corner" is "$corner" "$(expected pies "$corner")"
eventually "the tip is not where it was dragged" is 145x70+489+315 "$words"
shot tip_1_dragged
click 420 160
eventually "the click beside the tip has not reached the slice" is_coloured 420 160 "$chosen"
eventually "the first slice is still chosen" is_coloured 500 105 "$slice"
eventually "the tip has not gone" is 45x30+560+350 "$there"
shot tip_2_other
click 700 200
eventually "the second tip has not gone" is "$corner" "$(expected pies "$corner")"
shot tip_3_closed
close_gallery
holds "opened by a slice, dragged by its caption, closed by a click that reached another slice"

begin minute
open_gallery
tab 5
eventually "page minute" is "$whole" "$(expected minute)"
xdotool key Next
eventually "PageDown does not show the pies" is "$whole" "$(expected pies)"
xdotool key Prior
eventually "PageUp does not show the minutes again" is "$whole" "$(expected minute)"
point_at 300 150
eventually "no cursor at the pointer" is_not "$chart" "$(expected minute "$chart")"
shot minute_0_cursor
at_pointer=$(seen "$chart")
xdotool key Left
eventually "Left does not move the cursor" is_not "$chart" "$at_pointer"
shot minute_1_left
once_left=$(seen "$chart")
xdotool key Left
eventually "Left does not move the cursor again" is_not "$chart" "$once_left"
shot minute_2_left
xdotool key Right
eventually "Right does not move the cursor back" is "$chart" "$once_left"
point_at 320 150
point_at 300 150
eventually "the cursor is not at the pointer again" is "$chart" "$at_pointer"
double_click 300 150
eventually "no cross after a double click" is_not "$chart" "$at_pointer"
shot minute_3_cross
point_at 500 300
double_click 500 300
point_at 300 150
eventually "the cross stays after another double click" is "$chart" "$at_pointer"
note=790x16+4+544
for n in 1 2; do
    minutes=$(seen "$note")
    xdotool key n
    eventually "N does not step the replay" is_not "$note" "$minutes"
    shot minute_4_step_$n
done
is_not "$chart" "$at_pointer" || fail "the chart still shows the whole day"
close_gallery
holds "cursor, cross and replay by keys and double click; PageDown and PageUp turn the pages"

begin sizes
open_gallery
eventually "page overview" is "$whole" "$(expected overview)"
shot size_first_800x600
for size in 320x240 2560x1440 637x411 800x600; do
    width=${size%x*} height=${size#*x}
    "$gallery" --render "$shots/expected/$size" --page overview --size "${width}x$((height - strip))" >/dev/null
    xdotool windowsize "$window" "$width" "$height"
    part="${width}x$((height - strip))+0+0"
    eventually "at $size the page is not as drawn off the screen" is "$part" \
        "$(drawn "$shots/expected/$size/overview.png" "$part")"
    keep "size_$size" "${width}x$height+0+-$strip"
done
xdotool windowsize "$window" 800 624
eventually "back at the first size: other pixels than at first" is 800x624+0+-24 \
    "$(drawn "$shots/size_first_800x600.png" 800x624+0+0)"
close_gallery
holds "resized to 320x240, 2560x1440, 637x411 and back: no stale pixel"

begin live
minutes=290x180+265+260 without_notes=800x555+0+0
open_gallery --live 60
early=$(seen "$minutes")
sleep 1
is_not "$minutes" "$early" || fail "nothing moves within a second"
keep live_moving
close_gallery
open_gallery --live 240
eventually "the whole day is not shown in the end" is "$without_notes" "$(expected overview "$without_notes")"
shot live_ended
close_gallery
holds "the overview moves by itself and ends with the whole day"
rm -r "$shots/expected" "$shots/plot.ppm"
