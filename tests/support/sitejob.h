#pragma once

#include <QtCore/QByteArray>

/// A job file in the one form of our files that holds elements of every kind, among them two floors whose
/// rooms share an id, a room tag and a port tag that are there twice, and content that this version does not know.
inline QByteArray siteJob()
{
    return R"(<Job>
 <Release/>
 <Version number="3.0"/>
 <!-- drawn by hand -->
 <Cable_List>
  <Cable1 from="P2" id="Cable001" to="P1" type="CAT5E"/>
  <Cable2 from="V1" id="Cable002" to="P3" type="CAT6"/>
  <Cable3 from="P9" id="Cable003" to="P3" type="CAT5E"/>
 </Cable_List>
 <Connection_List>
  <Connection1 id="Uplink"/>
 </Connection_List>
 <Floor_List>
  <FFloor_1 id="Ground" pic="" ceiling_height="8" shape="new">
   <Room_List>
    <Undefined id="Undefined">
     <Port_List/>
     <VerticalRun_List/>
    </Undefined>
    <Room1 x="1" y="2" width="30" height="40" id="Lab" namex="5" namey="6" layer="1" show_name="2" show_dimensions="0">
     <Port_List>
      <P1 id="Jack 1"/>
      <P2 id="Jack 2"/>
     </Port_List>
     <VerticalRun_List>
      <V1 id="Riser"/>
     </VerticalRun_List>
    </Room1>
   </Room_List>
   <Point_List>
    <Point1 id="Bend"/>
   </Point_List>
   <FreeText_List>
    <TText1 id="North"/>
   </FreeText_List>
  </FFloor_1>
  <FFloor_2 id="Upper" pic="">
   <Room_List>
    <Undefined id="Undefined">
     <Port_List>
      <P3 id="Jack 1"/>
      <P2 id="Twin"/>
     </Port_List>
     <VerticalRun_List/>
    </Undefined>
    <Room1 x="7" id="Lab">
     <Port_List/>
     <VerticalRun_List/>
    </Room1>
    <Room2 id="Store"/>
   </Room_List>
  </FFloor_2>
 </Floor_List>
 <Sheet_List>
  <SSheet_1 id="Network">
   <Device_List>
    <Device1 id="Switch"/>
   </Device_List>
   <Vertice_List>
    <Vertice1 id="Corner"/>
   </Vertice_List>
   <FreeText_List>
    <Text1 id="Note"/>
   </FreeText_List>
  </SSheet_1>
 </Sheet_List>
 <Future_List colour="&#13;&amp;">kept <b>as it</b> is</Future_List>
 <ActiveNetworkTest_List>
  <ActivePort_List>
   <ActivePort1 id="Live"/>
  </ActivePort_List>
 </ActiveNetworkTest_List>
</Job>
)";
}
