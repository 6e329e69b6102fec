# Where the suite's services are. Only their paths are fixed in the sources; a distribution with
# its own servers sets its hosts here.
set(TESSERA_STATS_HOST "stats.tessera.example" CACHE STRING "Host of the statistics service")
set(TESSERA_GEO_HOST "geo.tessera.example" CACHE STRING "Host of the geo service")
