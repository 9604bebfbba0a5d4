'' KRM-410 command list: number,node,hint,description
' At most 100 entries. A setting ends with a blank for its value; a query ends with ?.
' A group begins with a blank: so it is never sent as a command.
' Channel 1
1, Channel 1,group,Vertical settings of channel 1
2,:CHAN1:SCAL ,volts: 2E-3 to 5 in steps 1-2-5; e.g. 500E-3,Set volts per division of channel 1
3,:CHAN1:SCAL?,reply: e.g. 500.0 mV,Ask volts per division of channel 1
4,:CHAN1:OFFS ,volts: 0 or more; e.g. 1 or 5E-1,Set vertical offset of channel 1
5,:CHAN1:OFFS?,reply: volts; e.g. -2.00 V,Ask vertical offset of channel 1
6,:CHAN1:DISP ,0 = off; 1 = on,Set display of channel 1
7,:CHAN1:DISP?,reply: 0 = off; 1 = on,Ask display of channel 1
8,:CHAN1:INV ,0 = normal; 1 = inverted,Set inversion of channel 1
9,:CHAN1:INV?,reply: 0 = normal; 1 = inverted,Ask inversion of channel 1
10,:CHAN1:BWL ,0 = full; 1 = limited,Set bandwidth limit of channel 1
11,:CHAN1:BWL?,reply: 0 = full; 1 = limited,Ask bandwidth limit of channel 1
12,:CHAN1:COUP ,0 = AC; 1 = DC; 2 = GND,Set input coupling of channel 1
13,:CHAN1:COUP?,reply: 0 = AC; 1 = DC; 2 = GND,Ask input coupling of channel 1
14,:CHAN1:PROB ,0 = x1; 1 = x10; 2 = x100,Set probe attenuation of channel 1
15,:CHAN1:PROB?,reply: 0 = x1; 1 = x10; 2 = x100,Ask probe attenuation of channel 1
' Channel 2
16, Channel 2,group,Vertical settings of channel 2
17,:CHAN2:SCAL ,volts: 2E-3 to 5 in steps 1-2-5; e.g. 500E-3,Set volts per division of channel 2
18,:CHAN2:SCAL?,reply: e.g. 500.0 mV,Ask volts per division of channel 2
19,:CHAN2:OFFS ,volts: 0 or more; e.g. 1 or 5E-1,Set vertical offset of channel 2
20,:CHAN2:OFFS?,reply: volts; e.g. -2.00 V,Ask vertical offset of channel 2
21,:CHAN2:DISP ,0 = off; 1 = on,Set display of channel 2
22,:CHAN2:DISP?,reply: 0 = off; 1 = on,Ask display of channel 2
23,:CHAN2:INV ,0 = normal; 1 = inverted,Set inversion of channel 2
24,:CHAN2:INV?,reply: 0 = normal; 1 = inverted,Ask inversion of channel 2
25,:CHAN2:BWL ,0 = full; 1 = limited,Set bandwidth limit of channel 2
26,:CHAN2:BWL?,reply: 0 = full; 1 = limited,Ask bandwidth limit of channel 2
27,:CHAN2:COUP ,0 = AC; 1 = DC; 2 = GND,Set input coupling of channel 2
28,:CHAN2:COUP?,reply: 0 = AC; 1 = DC; 2 = GND,Ask input coupling of channel 2
29,:CHAN2:PROB ,0 = x1; 1 = x10; 2 = x100,Set probe attenuation of channel 2
30,:CHAN2:PROB?,reply: 0 = x1; 1 = x10; 2 = x100,Ask probe attenuation of channel 2
' Time base
31, Time base,group,Horizontal settings
32,:TIM:SCAL ,seconds: 2E-9 to 5 in steps 1-2-5; e.g. 500E-6,Set time per division
33,:TIM:SCAL?,reply: e.g. 500.0 us,Ask time per division
34,:TIM:DEL ,seconds: 0 or more; e.g. 1E-3,Set horizontal delay
35,:TIM:DEL?,reply: seconds; e.g. 1.000 ms,Ask horizontal delay
' Trigger
36, Trigger,group,Trigger source and conditions
37,:TRIG:SOUR ,0 = channel 1; 1 = channel 2; 2 = EXT; 3 = line,Set trigger source
38,:TRIG:SOUR?,reply: 0 = channel 1; 1 = channel 2; 2 = EXT; 3 = line,Ask trigger source
39,:TRIG:MOD ,0 = auto level; 1 = auto; 2 = normal; 3 = single,Set trigger mode
40,:TRIG:MOD?,reply: 0 = auto level; 1 = auto; 2 = normal; 3 = single,Ask trigger mode
41,:TRIG:SLOP ,0 = rising; 1 = falling,Set trigger slope
42,:TRIG:SLOP?,reply: 0 = rising; 1 = falling,Ask trigger slope
43,:TRIG:COUP ,0 = AC; 1 = DC,Set trigger coupling
44,:TRIG:COUP?,reply: 0 = AC; 1 = DC,Ask trigger coupling
45,:TRIG:REJ ,0 = off; 1 = LF; 2 = HF,Set frequency rejection of the trigger; ask with :TRIG:REJ?
46,:TRIG:NREJ ,0 = off; 1 = on,Set noise rejection of the trigger; ask with :TRIG:NREJ?
47,:TRIG:LEV ,volts: 0 or more; e.g. 1 or 2E-1,Set trigger level
48,:TRIG:LEV?,reply: volts; e.g. 200.0 mV,Ask trigger level
' Advanced trigger
49, Advanced trigger,group,Logic levels and delay of the trigger
50,:TRIG:ADV:MOD ,0 = TTL; 1 = ECL; 2 = user,Set logic family of the advanced trigger; ask with :TRIG:ADV:MOD?
51,:TRIG:ADV:TYP ,0 = time; 1 = event,Set kind of delay of the advanced trigger; ask with :TRIG:ADV:TYP?
52,:TRIG:ADV:EVEN ,whole number; e.g. 1,Set event of the advanced trigger; ask with :TRIG:ADV:EVEN?
53,:TRIG:ADV:LEV ,whole number; e.g. 1,Set level of the advanced trigger; ask with :TRIG:ADV:LEV?
54,:TRIG:ADV:DEL ,whole number; e.g. 1,Set delay of the advanced trigger; ask with :TRIG:ADV:DEL?
' Acquisition
55, Acquisition,group,Sampling; averaging; run control
56,:ACQ:MOD ,0 = sample; 1 = average,Set acquisition mode
57,:ACQ:MOD?,reply: 0 = sample; 1 = average,Ask acquisition mode
58,:ACQ:AVER ,0 = 2; 1 = 4; 2 = 8; 3 = 16; 4 = 32; 5 = 64; 6 = 128,Set number of records averaged
59,:ACQ:AVER?,reply: 0 = 2; 1 = 4; 2 = 8; 3 = 16; 4 = 32; 5 = 64; 6 = 128,Ask number of records averaged
60,:ACQ:LEN?,reply: 0 = 500 samples,Ask record length; the only setting is :ACQ:LEN 0
61,:Run,no parameter,Start acquisition
62,:Stop,no parameter,Stop acquisition and hold the record
63,:AUT,no parameter,Autoset: scales; offsets and trigger to suit the signals
' Display
64, Display,group,Screen of the instrument
65,:DISP:BRIG:DATA ,0 to 100,Set brightness of the traces; ask with :DISP:BRIG:DATA?
66,:DISP:BRIG:GRAT ,0 to 100,Set brightness of the graticule; ask with :DISP:BRIG:GRAT?
67,:DISP:BRIG:WAV ,0 = vector; 1 = dot,Set trace style; ask with :DISP:BRIG:WAV?
' Math
68, Math,group,Sum and difference of the channels
69,:CHAN1:MATH ,0 = off; 1 = sum 1+2; 2 = difference 1-2,Set math on channel 1; ask with :CHAN1:MATH?
70,:CHAN2:MATH ,0 = off; 2 = difference 2-1,Set math on channel 2; ask with :CHAN2:MATH?
' Measurement
71, Measurement,group,Automatic measurements of the trace on the screen
72,:MEAS:SOUR ,1 = channel 1; 2 = channel 2,Set channel to measure; ask with :MEAS:SOUR?
73,:MEAS:VPP?,reply: volts; e.g. 707.1 mV,Peak to peak voltage
74,:MEAS:VAMP?,reply: volts; e.g. 707.1 mV,Amplitude from low to high level
75,:MEAS:VAV?,reply: volts; e.g. 707.1 mV,Mean voltage
76,:MEAS:VRMS?,reply: volts; e.g. 707.1 mV,RMS voltage
77,:MEAS:VHI?,reply: volts; e.g. 707.1 mV,High level
78,:MEAS:VLO?,reply: volts; e.g. 707.1 mV,Low level
79,:MEAS:VMAX?,reply: volts; e.g. 707.1 mV,Maximum voltage
80,:MEAS:VMIN?,reply: volts; e.g. 707.1 mV,Minimum voltage
81,:MEAS:FREQ?,reply: hertz; e.g. 1.000 kHz; N/A when not on the screen,Frequency
82,:MEAS:PER?,reply: seconds; e.g. 1.000 ms; N/A when not on the screen,Period
83,:MEAS:RIS?,reply: seconds; e.g. 290.0 us; N/A when not on the screen,Rise time from 10 % to 90 %
84,:MEAS:FALL?,reply: seconds; e.g. 290.0 us; N/A when not on the screen,Fall time from 90 % to 10 %
85,:MEAS:PWID?,reply: seconds; e.g. 500.0 us; N/A when not on the screen,Width of the positive pulse
86,:MEAS:NWID?,reply: seconds; e.g. 500.0 us; N/A when not on the screen,Width of the negative pulse
87,:MEAS:PDUT?,reply: percent; e.g. 50.00 %; N/A when not on the screen,Duty cycle of the positive pulse
' System
88, System,group,Errors; front panel
89,:SYST:ERR?,reply: count,Ask number of commands not understood; clears the count
90,:SYST:UNL,no parameter,Unlock the front panel of the instrument
