# Hosts of the suite's services; the paths are fixed in the sources.
set(TESSERA_STATS_HOST "stats.tessera.example" CACHE STRING "Host of the statistics service")
set(TESSERA_GEO_HOST "geo.tessera.example" CACHE STRING "Host of the geo service")
