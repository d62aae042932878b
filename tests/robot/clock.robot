# A clock that cannot be read is refused: the case would run at the real time.
#: options --now 2026-11-05
start
