// A version note that claims to be longer than the program, in the place where a program's own stands. Linked into a
// copy of the probe, which shows no version then.
asm(R"(
    .pushsection .note.Vyr, "a", %note
    .balign 4
    .long 4, 0x7ffffff0, 1
    .asciz "Vyr"
    .long 1, 2, 3, 4
    .popsection
)");
