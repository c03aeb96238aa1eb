#!/usr/bin/env bash
# The system-wide launcher on a table of per-user folders. A start makes a private folder of links
# to the program folder beside a data file of the user's own and starts the game from there,
# keeping what the user put there. Where someone else could have planted something (a folder or
# file of another user, writable by others, a symbolic link, a link the launcher did not make),
# it refuses: one line on stderr, a non-zero exit, no game, and nothing on disk changed. The game
# is a stand-in that notes where it was started from: what is tested is the launcher alone.
set -euo pipefail
launcher_in=$1
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
chmod 755 "$top"

I=$top/usr/lib/zarvo   # the program folder, as the package installs it
mkdir -p "$top/usr/games" "$I/translations"
sed 's/@ZARVO_RECORDS@/per-user/' "$launcher_in" >"$top/usr/games/zarvo"
printf '#!/bin/sh\necho "$0 $(umask)" >"%s/started"\n' "$top" >"$I/Zarvo"
chmod 755 "$top/usr/games/zarvo" "$I/Zarvo"
echo help >"$I/Zarvo.hlp"
echo fresh >"$I/Zarvo.dat"

# Another user's, for the rows marked "root": only root can give a file away.
give() { chown -h 65534 "$@"; }
# Everything under the case's folder, with owner, mode, link target and content: a refusal must
# leave it as it was.
snapshot() { find "$top/case" -printf '%p %u %m %l\n' -type f -exec md5sum {} \; | sort; }

# what | XDG_DATA_HOME (H is the home) | needs root | setup (D is the data home, O its zarvo) | expect | then also
cases=$(cat <<'TABLE'
first start, the XDG default     | -         | -    | :                                                  | start   | [ "$(cat $O/Zarvo.dat)" = fresh ]
first start under XDG_DATA_HOME  | $H/data   | -    | :                                                  | start   | [ "$(cat $O/Zarvo.dat)" = fresh ]
a relative XDG_DATA_HOME         | rel/data  | -    | :                                                  | start   | [ ! -e rel ]
the user's files and links stay  | -         | -    | mkdir -p -m 700 $O; echo mine >$O/Zarvo.dat; chmod 600 $O/Zarvo.dat; echo notes >$O/notes; ln -s /nowhere $O/mine | start | [ "$(cat $O/Zarvo.dat) $(cat $O/notes) $(readlink $O/mine)" = "mine notes /nowhere" ]
own links renewed, stale go      | -         | -    | mkdir -p -m 700 $O; ln -s $I/gone $O/gone; ln -s $I/Zarvo.hlp $O/translations | start | [ ! -L $O/gone ]
the folder is a symbolic link    | -         | -    | mkdir -p -m 700 $D/real; ln -s real $O              | refuse is a symbolic link | :
the folder is another user's     | -         | root | mkdir -p -m 700 $O; give $O                         | refuse $O does not belong to you | :
the folder is open to its group  | -         | -    | mkdir -p -m 770 $O                                  | refuse $O can be written by others | :
the folder is open to others     | -         | -    | mkdir -p -m 702 $O                                  | refuse $O can be written by others | :
the data file is a link          | -         | -    | mkdir -p -m 700 $O; ln -s $I/Zarvo.dat $O/Zarvo.dat | refuse $O/Zarvo.dat is a symbolic link | :
the data file is another user's  | -         | root | mkdir -p -m 700 $O; cp $I/Zarvo.dat $O; chmod 600 $O/Zarvo.dat; give $O/Zarvo.dat | refuse $O/Zarvo.dat does not belong to you | :
the data file is open to others  | -         | -    | mkdir -p -m 700 $O; cp $I/Zarvo.dat $O; chmod 606 $O/Zarvo.dat | refuse $O/Zarvo.dat can be written by others | :
the program link leads elsewhere | -         | -    | mkdir -p -m 700 $O; ln -s /bin/true $O/Zarvo        | refuse $O/Zarvo is not a link to | :
the program link is another's    | -         | root | mkdir -p -m 700 $O; ln -s $I/Zarvo $O/Zarvo; give $O/Zarvo | refuse $O/Zarvo is not a link to | :
a file where a link goes         | -         | -    | mkdir -p -m 700 $O; echo mine >$O/Zarvo.hlp         | refuse $O/Zarvo.hlp is not a link to | :
the data home is another user's  | $H/theirs | root | mkdir -p -m 755 $O; chmod 700 $O; give $D $O        | refuse $D does not belong to you | :
the data home is open to all     | $H/open   | -    | mkdir -p $D; chmod 777 $D                           | refuse $D can be written by others | :
the data home is open to a group | $H/shared | root | mkdir -p $D; chgrp 65534 $D; chmod 775 $D    | refuse $D can be written by others | :
the data home is sticky, as /tmp | $H/tmp    | -    | mkdir -p $D; chmod 1777 $D                          | start   | :
the data home is the user group's| $H/group  | -    | mkdir -p $D; chgrp $(id -g) $D; chmod 775 $D        | start   | :
TABLE
)

failures=0 ran=0 skipped=0
while IFS='|' read -r what xdg needs setup expect then; do
  what=$(echo $what) xdg=$(echo $xdg) needs=$(echo $needs)
  if [ "$needs" = root ] && [ "$(id -u)" != 0 ]; then skipped=$((skipped + 1)); continue; fi
  rm -rf "$top/case" "$top/started"
  H=$top/case/home
  mkdir -p "$H"
  case $xdg in -) D=$H/.local/share; env=(-u XDG_DATA_HOME) ;;
               /*|\$*) D=$(eval echo "$xdg"); env=(XDG_DATA_HOME="$D") ;;
               *) D=$H/.local/share; env=(XDG_DATA_HOME="$xdg") ;; esac
  O=$D/zarvo
  eval "$setup"
  before=$(snapshot)
  status=0
  (cd "$top/case" && env "${env[@]}" HOME="$H" "$top/usr/games/zarvo" 2>"$top/stderr" >/dev/null) || status=$?
  err=$(cat "$top/stderr")
  problem=
  case $(echo $expect) in
    start)
      if [ $status != 0 ] || [ -n "$err" ]; then problem="exit $status: $err"
      elif [ "$(cat "$top/started" 2>/dev/null)" != "$O/Zarvo 0077" ]; then problem="the game was not started from $O"
      elif [ "$(readlink "$O/Zarvo" "$O/Zarvo.hlp" "$O/translations" | xargs)" != "$I/Zarvo $I/Zarvo.hlp $I/translations" ]
      then problem="the links to the program folder"
      elif [ -L "$O/Zarvo.dat" ] || [ "$(stat -c %a "$O") $(stat -c %a "$O/Zarvo.dat")" != "700 600" ]; then
        problem="the folder or its data file is open to others"
      elif ! (cd "$top/case" && eval "$then"); then problem="failed: $then"
      fi ;;
    refuse*)
      message=$(echo $expect); message=$(eval echo "\"${message#refuse }\"")
      if [ $status = 0 ] || [ -e "$top/started" ]; then problem="the game was started"
      elif [ "$(wc -l <"$top/stderr")" != 1 ] || [[ $err != *"$message"* ]]; then problem="said: $err"
      elif [ "$(snapshot)" != "$before" ]; then problem="changed what it found"
      fi ;;
  esac
  ran=$((ran + 1))
  if [ -n "$problem" ]; then echo "launcher: $what: $problem"; failures=$((failures + 1)); fi
done <<<"$cases"
echo "launcher: $((ran - failures)) passed, $failures failed, $skipped skipped"
[ $failures = 0 ]
