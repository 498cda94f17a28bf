#!/bin/bash
# The shell completes --types: extensions and sets of the mode, behind a comma too, and only what goes on at an @.
# usage: types_complete.sh COMMAND COMPLETION
PATH=$(dirname "$1"):$PATH
compopt() { :; }
_init_completion() {
    words=("${COMP_WORDS[@]}")
    cword=$COMP_CWORD cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
}
. "$2"
failed=0
expect() { # MODE TYPED REPLIES
    COMP_WORDS=(vantor-recovery-cli --mode "$1" --types "$2") COMP_CWORD=4 COMPREPLY=()
    _vantor_recovery_cli vantor-recovery-cli
    if [[ "${COMPREPLY[*]}" != "$3" ]]; then
        echo "--mode $1 --types $2: ${COMPREPLY[*]} in place of $3"
        failed=1
    fi
}
expect rawfile DOC 'DOC DOCX'
COMP_WORDBREAKS=${COMP_WORDBREAKS//@/}
expect rawfile PDF,@o PDF,@office
expect video MKV,MP4,WEB MKV,MP4,WEBM
COMP_WORDBREAKS=${COMP_WORDBREAKS//@/}@
expect rawfile @o office
expect rawfile PDF,@rec recorder
expect video @office ''
exit $failed
