/**
 * metriques.h - a file in the text format of Prometheus, for the textfile
 * collector of node_exporter.
 */
#ifndef QUILVANE_LOT_METRIQUES_H
#define QUILVANE_LOT_METRIQUES_H

#include <string>

#include "lot/depot.h"
#include "lot/total.h"

namespace quilvane::lot {

/** The counters of an earlier run, from the file that it left; zeros when there
 *  is none: counters go on, they do not start again with every run. */
total lireMetriques(const std::string& chemin);

/** Writes the file beside itself as "<chemin>.part", then renames it. `avant` is
 *  what `lireMetriques` gave at the start, `t` what was done since. */
bool ecrireMetriques(const std::string& chemin, const depot& d, const total& avant, const total& t,
                     eLangue langue, faute& f);

}  // namespace quilvane::lot

#endif
