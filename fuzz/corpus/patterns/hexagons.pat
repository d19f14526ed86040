; A honeycomb of hexagons with sides of 1: the same family in three directions.
; Two lines to a tile repeat each; three directions make a compound of three symbols.
*HEXAGONS,Honeycomb
0, 0,0, 1.5,0.8660254, 1,-2
120, 0,0, 1.5,0.8660254, 1,-2
60, 1,0, 1.5,0.8660254, 1,-2
