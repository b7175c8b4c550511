// Version notes that are not what they claim to be, in the place where a program's own note stands. Linked into a copy
// of the probe, which must come through unharmed and show no version.
asm(R"(
    .pushsection .note.Vyr, "a", %note
    .balign 4
    # Another owner and another type.
    .long 4, 4, 1
    .asciz "Ryv"
    .long 7
    .long 4, 4, 2
    .asciz "Vyr"
    .long 7
    # The texts are not ended.
    .long 4, 20, 1
    .asciz "Vyr"
    .long 1, 2, 3, 4
    .ascii "open"
    # The content is longer than the section.
    .long 4, 0x7ffffff0, 1
    .asciz "Vyr"
    .popsection
)");
