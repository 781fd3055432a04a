/**
 * attgetopt.h - the option parser: one-letter options, grouped or not, with or
 * without an argument.
 */
#ifndef QUILVANE_ATTGETOPT_ATTGETOPT_H
#define QUILVANE_ATTGETOPT_ATTGETOPT_H

namespace quilvane {

/** Index of the next argument to look at; starts at 1. Written by `getopt`. */
extern int optind;
/** Argument of the last option that takes one, else null. Written by `getopt`. */
extern char* optarg;
/** The last option character looked at. Written by `getopt`. */
extern int optopt;
/** When non-zero, faults are written to standard error. Starts at 1. */
extern int opterr;

/**
 * The next option of `argv`, -1 when there is none: at the first argument that
 * does not begin with '-', at a lone "-", or behind "--". `opts` lists the
 * option characters; one followed by ':' takes the rest of its word, or else
 * the next word whatever it is. An unknown option, and one whose argument is
 * missing, give '?' and a line on standard error.
 */
int getopt(int argc, char* const argv[], const char* opts);

/** Starts over at the first argument, for a new run in the same process. */
void recommencerOptions();

}  // namespace quilvane

#endif
