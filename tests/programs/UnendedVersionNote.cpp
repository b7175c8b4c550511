// Notes that a reader of versions must pass by, and a version note whose texts have no end, in the place where a
// program's own stands. Linked into a copy of the probe, which shows no version then.
asm(R"(
    .pushsection .note.Vyr, "a", %note
    .balign 4
    .long 4, 4, 1
    .asciz "Ryv"
    .long 7
    .long 4, 4, 2
    .asciz "Vyr"
    .long 7
    .long 4, 20, 1
    .asciz "Vyr"
    .long 1, 2, 3, 4
    .ascii "open"
    .popsection
)");
