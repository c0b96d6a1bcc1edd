// tarnwick-cli: scans and cleans without a window, for servers, scripts and whoever lives in a terminal.
#include "cli/program.h"

int main(int argc, char** argv) { return cli::run(argc, argv); }
