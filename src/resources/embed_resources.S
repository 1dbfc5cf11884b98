// The compiled resource file as read-only data of the library.
    .section .rodata
    .balign 8
    .global g_tavlonResources
    .hidden g_tavlonResources
    .global g_tavlonResourcesEnd
    .hidden g_tavlonResourcesEnd
g_tavlonResources:
    .incbin TAVLON_RES_FILE
g_tavlonResourcesEnd:
    .byte 0
    .section .note.GNU-stack, "", %progbits
