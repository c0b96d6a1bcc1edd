// tarnwick: the program with a window.
#include "ui/shell/program.h"

int main(int argc, char** argv) { return ui::runProgram(argc, argv); }
