#!/usr/bin/env python3
"""zsh_offers.py FOLDER WORD... prints what zsh offers at the end of the words, a line each.

zsh completes in its line editor only, so this types at one in a terminal of its own.
"""

import os
import pty
import re
import select
import sys

PROMPT = b"<ready>"


def read_until(terminal, mark):
    seen = b""
    while mark not in seen:
        if not select.select([terminal], [], [], 20)[0]:
            sys.exit(f"zsh says nothing any more, after {seen!r}")
        seen += os.read(terminal, 65536)
    return seen


def words_offered(folder, words):
    child, terminal = pty.fork()
    if child == 0:
        os.environ.update(TERM="dumb", LC_ALL="C.UTF-8", PS1=PROMPT.decode())
        os.execvp("zsh", ["zsh", "-f", "-i"])
    setup = [
        "unset zle_bracketed_paste; LISTMAX=1000; stty columns 300 rows 1000",
        f"fpath=('{folder}' $fpath); autoload -Uz compinit; compinit -u -D",
        # What would be inserted or listed is printed between two marks instead.
        "compadd() { local -a o_found; builtin compadd -O o_found \"$@\"; offered+=(\"${o_found[@]}\"); builtin compadd \"$@\" }",
        "offer() { offered=(); _main_complete; print -r -- $'\\n<offers>'; print -rl -- \"${offered[@]}\"; print -r -- '<end>'; compstate[insert]=; compstate[list]= }",
        "zle -C offer complete-word offer; bindkey '^X' offer",
    ]
    read_until(terminal, PROMPT)
    for line in setup:
        os.write(terminal, line.encode() + b"\n")
        read_until(terminal, PROMPT)
    quoted = [word if re.fullmatch(r"[\w./-]*", word) else f"'{word}'" for word in words]
    os.write(terminal, " ".join(quoted).encode() + b"\x18")
    text = read_until(terminal, b"<end>\r\n").decode()
    os.write(terminal, b"\x15exit\n")
    os.close(terminal)
    os.waitpid(child, 0)
    return text.split("<offers>\r\n")[-1].split("<end>")[0].split("\r\n")


if __name__ == "__main__":
    print("\n".join(word for word in words_offered(sys.argv[1], sys.argv[2:]) if word))
