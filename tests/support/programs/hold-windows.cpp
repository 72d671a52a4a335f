// A window manager that maps no window. Prints a line once it manages the display.
#include <X11/Xlib.h>

#include <cstdio>

int main() {
  Display* const display = XOpenDisplay(nullptr);
  if (display == nullptr) return 1;
  XSelectInput(display, DefaultRootWindow(display), SubstructureRedirectMask);
  XSync(display, False);
  puts("holding");
  fflush(stdout);
  for (XEvent request;;) XNextEvent(display, &request);
}
