/**
 * processus.h - what the run asks of its process: standard descriptors that are
 * open, signals that wait for a good moment, and word of writes that failed.
 */
#ifndef QUILVANE_DRIVER_PROCESSUS_H
#define QUILVANE_DRIVER_PROCESSUS_H

namespace quilvane {

/** Opens those of the descriptors 0 to 2 that are closed on /dev/null, has
 *  writes fail that would end the process (SIGPIPE, SIGXFSZ), and from now on
 *  takes note of TERM, INT and HUP, as far as they are not ignored. */
void preparerProcessus();

/** Whether TERM, INT or HUP has come. */
bool interrompu();

/** Keeps TERM, INT and HUP waiting until `terminerProcessus`. */
void retenirSignaux();

/** Says on standard error, once in a run, that console or log lack something. */
void signalerEcriture();

/** Writes the console out, says so when it could not be written, and ends the
 *  process by the signal that has come, if any. */
void terminerProcessus();

}  // namespace quilvane

#endif
