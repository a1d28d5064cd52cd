#!/usr/bin/env bash
# A file that is named without an option is opened as what it is, and the empty board that it may
# hold is exported. Usage: either-file.sh WORKBENCH MODULES
set -u
workbench=$1 modules=$2
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cd "$dir" || exit 1

empty='"fonts":[],"specialSymbols":[],"userSymbols":[],"specialTexts":[],"attributes":[]'
echo "{\"format\":1,\"jobs\":[{\"name\":\"mine\",\"steps\":[\"first\"],$empty}]}" >job.json
mkdir folder
cp job.json folder
echo '{"format":1,"job":"a*b","step":"c","outline":[],"features":[]}' >folder/board.json

# opened FILE TITLE
opened() {
    echo "expect state m_pWorkbench \"title=$2\"" >title.session
    SOURCE_DATE_EPOCH=0 "$workbench" --modules "$modules" "$1" --play title.session \
        --export "$1.gbr" --exit 2>err || { cat err; exit 1; }
}
# File dialogs begin beside the job, or beside the board that is opened later.
cat >folder.session <<'END'
menu m_pFileMenu m_pOpenBoardAct
type fileNameEdit board.json
key fileNameEdit Enter
expect state m_pWorkbench "title=board.json - mine / first - Workbench"
END
"$workbench" --modules "$modules" folder/job.json --play folder.session --exit 2>err || {
    cat err
    exit 1
}
opened job.json "mine / first - Workbench"
cp folder/board.json .
opened board.json "board.json - demo / pcb - Workbench"
sed -E 's/(canvas-workbench),[0-9.]+/\1,VERSION/' board.json.gbr | diff - <(cat <<'END'
G04 #@! TF.GenerationSoftware,Canvas Tool Strip,canvas-workbench,VERSION*
G04 #@! TF.CreationDate,1970-01-01T00:00:00Z*
G04 Job: a\u002Ab*
G04 Step: c*
%FSLAX46Y46*%
%MOMM*%
%ADD10C,0.010000*%
%LPD*%
G75*
G01*
M02*
END
)
