# Where the program's maker is found, and whether the program brings itself up to date. src/core/deployment.h tells them
# to the program. The defaults are names that lead nowhere.
set(TARNWICK_DOMAIN "tarnwick.example" CACHE STRING
  "Domain of the releases: nothing is downloaded from elsewhere. Only a Debug build may leave it empty")
set(TARNWICK_RELEASE_HOST "" CACHE STRING "Host of the update feed, in that domain; releases.DOMAIN if empty")
set(TARNWICK_WEBSITE "" CACHE STRING "The product's web site, with its scheme; https://DOMAIN if empty")
option(TARNWICK_SELF_UPDATE "Look for updates; OFF where a distribution updates its programs itself" ON)

# In the order of their names: what core/deployment.cpp, the only file that sees them, is compiled with.
set(release_host "${TARNWICK_RELEASE_HOST}")
if(NOT release_host)
  set(release_host "releases.${TARNWICK_DOMAIN}")
endif()
set(website "${TARNWICK_WEBSITE}")
if(NOT website)
  set(website "https://${TARNWICK_DOMAIN}")
endif()
set(TARNWICK_DEPLOYMENT
  TARNWICK_DEBUG_BUILD=$<CONFIG:Debug>
  TARNWICK_DOMAIN="${TARNWICK_DOMAIN}"
  TARNWICK_RELEASE_HOST="${release_host}"
  TARNWICK_SELF_UPDATE=$<BOOL:${TARNWICK_SELF_UPDATE}>
  TARNWICK_WEBSITE="${website}"
)
